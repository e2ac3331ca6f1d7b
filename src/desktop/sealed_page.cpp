#include "desktop/sealed_page.h"

#include <QWebEngineSettings>

namespace talvor {

void OneFileOnly::interceptRequest(QWebEngineUrlRequestInfo& request) {
  if (request.requestUrl() != allowed_) request.block(true);
}

SealedPage::SealedPage(QObject* parent) : SealedPage(new QWebEngineProfile(), parent) {}

SealedPage::SealedPage(QWebEngineProfile* profile, QObject* parent)
    : QWebEnginePage(profile, parent), guard_(new OneFileOnly(profile)) {
  profile->setUrlRequestInterceptor(guard_);
  QWebEngineSettings* rules = settings();
  for (const auto attribute :
       {QWebEngineSettings::JavascriptEnabled, QWebEngineSettings::LocalContentCanAccessFileUrls,
        QWebEngineSettings::LocalContentCanAccessRemoteUrls, QWebEngineSettings::PluginsEnabled,
        QWebEngineSettings::AutoLoadIconsForPage})
    rules->setAttribute(attribute, false);
  rules->setDefaultTextEncoding(QStringLiteral("windows-1252"));
}

SealedPage::~SealedPage() {
  // A profile must outlive its page, which is gone once this object is.
  profile()->deleteLater();
}

void SealedPage::LoadFile(const QUrl& address) {
  file_ = address;
  guard_->Allow(address);
  load(address);
}

bool SealedPage::acceptNavigationRequest(const QUrl& address, NavigationType, bool isMainFrame) {
  return isMainFrame && address == file_;
}

}  // namespace talvor
