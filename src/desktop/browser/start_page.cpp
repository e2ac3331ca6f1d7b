#include "desktop/browser/start_page.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPalette>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

#include "base/line_file.h"
#include "capture/start_page.h"

namespace talvor {
namespace {

const QByteArray SchemeName = QByteArrayLiteral("talvor");

// The page of sites, in the data folder, from which the directory can be rebuilt.
constexpr const char* SitesPage = "listesites.htm";

PagePalette WindowPalette() {
  const QPalette palette = QGuiApplication::palette();
  const bool dark =
      palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
  return dark ? PagePalette::Dark : PagePalette::Light;
}

}  // namespace

void RegisterStartPageScheme() {
  QWebEngineUrlScheme scheme(SchemeName);
  scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
  scheme.setFlags(QWebEngineUrlScheme::SecureScheme);
  QWebEngineUrlScheme::registerScheme(scheme);
}

void StartPageHandler::requestStarted(QWebEngineUrlRequestJob* job) {
  auto* page = new QBuffer(job);
  const auto sites = ReadBytes(SitesPage);
  if (job->requestUrl().fileName() == QString::fromLatin1(SitesPage) && sites) {
    page->setData(QByteArray::fromStdString(*sites));
  } else {
    SiteDirectory directory;
    directory.Charger();
    page->setData(QByteArray::fromStdString(ToUtf8(StartPageHtml(directory, WindowPalette()))));
  }
  page->open(QIODevice::ReadOnly);
  job->reply(QByteArrayLiteral("text/html"), page);
}

void InstallStartPage(QWebEngineProfile& profile) {
  if (profile.urlSchemeHandler(SchemeName) == nullptr)
    profile.installUrlSchemeHandler(SchemeName, new StartPageHandler(&profile));
}

}  // namespace talvor
