#include "desktop/platform/sealed_page.h"

#include <QColor>
#include <QFileInfo>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

namespace talvor {
namespace {

const QUrl Blank(QStringLiteral("about:blank"));

}  // namespace

bool ReachGuard::Allows(const QUrl& address) const {
  if (address == Blank) return true;
  if (file_.isEmpty() || !address.isLocalFile() || !address.host().isEmpty()) return false;
  if (reach_ == Reach::File) return address == file_;
  const QString file = QFileInfo(address.toLocalFile()).canonicalFilePath();
  const QString folder = QFileInfo(QFileInfo(file_.toLocalFile()).path()).canonicalFilePath();
  return !file.isEmpty() && !folder.isEmpty() && file.startsWith(folder + QLatin1Char('/'));
}

void ReachGuard::interceptRequest(QWebEngineUrlRequestInfo& request) {
  if (!Allows(request.requestUrl())) request.block(true);
}

SealedPage::SealedPage(Reach reach, QObject* parent) : SealedPage(reach, new QWebEngineProfile(), parent) {}

SealedPage::SealedPage(Reach reach, QWebEngineProfile* profile, QObject* parent)
    : QWebEnginePage(profile, parent), reach_(reach), guard_(new ReachGuard(reach, profile)) {
  profile->setUrlRequestInterceptor(guard_);
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
        Attribute::LocalStorageEnabled, Attribute::PluginsEnabled, Attribute::PdfViewerEnabled,
        Attribute::FullScreenSupportEnabled, Attribute::HyperlinkAuditingEnabled,
        Attribute::DnsPrefetchEnabled, Attribute::AutoLoadIconsForPage, Attribute::WebGLEnabled,
        Attribute::NavigateOnDropEnabled, Attribute::FocusOnNavigationEnabled, Attribute::ErrorPageEnabled})
    rules->setAttribute(off, false);
  // What lies on the disk beside the folder is kept out by the guard.
  rules->setAttribute(Attribute::LocalContentCanAccessFileUrls, reach_ == Reach::Folder);
  rules->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
  rules->setDefaultTextEncoding(QStringLiteral("windows-1252"));
}

void SealedPage::ShowFile(const QUrl& file) {
  guard_->SetFile(file);
  if (url() == file) return triggerAction(QWebEnginePage::ReloadAndBypassCache);
  file_ = file;
  load(file);
}

void SealedPage::ShowBlank() {
  guard_->SetFile({});
  file_.clear();
  load(Blank);
}

bool SealedPage::acceptNavigationRequest(const QUrl& address, NavigationType type, bool isMainFrame) {
  if (!isMainFrame) return reach_ == Reach::Folder;  // the guard decides
  const bool ours = type == NavigationTypeTyped || type == NavigationTypeReload;
  return address == Blank || (ours && address == file_);
}

}  // namespace talvor
