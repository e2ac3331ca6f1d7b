#include "desktop/platform/sealed_page.h"

#include <QColor>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

namespace talvor {
namespace {

const QUrl Blank(QStringLiteral("about:blank"));

}  // namespace

void ReachGuard::interceptRequest(QWebEngineUrlRequestInfo& request) {
  if (request.requestUrl() != Blank && !files_.Allows(request.requestUrl())) request.block(true);
}

SealedPage::SealedPage(Reach reach, QObject* parent) : SealedPage(reach, new QWebEngineProfile(), parent) {}

SealedPage::SealedPage(Reach reach, QWebEngineProfile* profile, QObject* parent)
    : QWebEnginePage(profile, parent), reach_(reach), files_(new SealedFiles(reach, profile)) {
  profile->installUrlSchemeHandler(SealedAddress({}).scheme().toLatin1(), files_);
  profile->setUrlRequestInterceptor(new ReachGuard(*files_, profile));
  profile->setHttpCacheType(QWebEngineProfile::NoCache);
  setBackgroundColor(Qt::white);
  BuildWalls();
}

SealedPage::~SealedPage() {
  // A profile must outlive its page, which is gone once this object is.
  profile()->deleteLater();
}

void SealedPage::BuildWalls() {
  using Attribute = QWebEngineSettings::WebAttribute;
  QWebEngineSettings* rules = settings();
  for (const Attribute off :
       {Attribute::JavascriptEnabled, Attribute::JavascriptCanOpenWindows,
        Attribute::JavascriptCanAccessClipboard, Attribute::LocalContentCanAccessRemoteUrls,
        Attribute::LocalContentCanAccessFileUrls, Attribute::LocalStorageEnabled, Attribute::PluginsEnabled,
        Attribute::PdfViewerEnabled, Attribute::FullScreenSupportEnabled, Attribute::HyperlinkAuditingEnabled,
        Attribute::DnsPrefetchEnabled, Attribute::AutoLoadIconsForPage, Attribute::WebGLEnabled,
        Attribute::NavigateOnDropEnabled, Attribute::FocusOnNavigationEnabled, Attribute::ErrorPageEnabled})
    rules->setAttribute(off, false);
  rules->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
  rules->setDefaultTextEncoding(QStringLiteral("windows-1252"));
}

void SealedPage::ShowFile(const QString& file) {
  files_->SetFile(file);
  const QUrl address = SealedAddress(file);
  if (url() == address) return triggerAction(QWebEnginePage::ReloadAndBypassCache);
  file_ = address;
  load(address);
}

void SealedPage::ShowBlank() {
  files_->SetFile({});
  file_.clear();
  load(Blank);
}

bool SealedPage::acceptNavigationRequest(const QUrl& address, NavigationType type, bool isMainFrame) {
  if (!isMainFrame) return reach_ == Reach::Folder;  // the guard decides
  const bool ours = type == NavigationTypeTyped || type == NavigationTypeReload;
  return address == Blank || (ours && address == file_);
}

}  // namespace talvor
