#include "desktop/start_page.h"

#include <QBuffer>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

#include "ads/start_page.h"

namespace talvor {
namespace {

const QByteArray SchemeName = QByteArrayLiteral("talvor");

}  // namespace

void RegisterStartPageScheme() {
  QWebEngineUrlScheme scheme(SchemeName);
  scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
  scheme.setFlags(QWebEngineUrlScheme::SecureScheme);
  QWebEngineUrlScheme::registerScheme(scheme);
}

void StartPageHandler::requestStarted(QWebEngineUrlRequestJob* job) {
  SiteDirectory directory;
  directory.Charger();
  auto* page = new QBuffer(job);
  page->setData(QByteArray::fromStdString(ToUtf8(StartPageHtml(directory))));
  page->open(QIODevice::ReadOnly);
  job->reply(QByteArrayLiteral("text/html"), page);
}

void InstallStartPage(QWebEngineProfile& profile) {
  if (profile.urlSchemeHandler(SchemeName) == nullptr)
    profile.installUrlSchemeHandler(SchemeName, new StartPageHandler(&profile));
}

}  // namespace talvor
