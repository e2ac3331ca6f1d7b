#include "desktop/cv_page_view.h"

#include <QFileInfo>
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <algorithm>

#include "desktop/text_edge.h"

namespace talvor {
namespace {

const QString BlankAddress = QStringLiteral("about:blank");

void BuildWalls(QWebEngineSettings& settings) {
  using Attribute = QWebEngineSettings::WebAttribute;
  for (const Attribute off :
       {Attribute::JavascriptEnabled, Attribute::JavascriptCanOpenWindows,
        Attribute::JavascriptCanAccessClipboard, Attribute::LocalContentCanAccessRemoteUrls,
        Attribute::LocalStorageEnabled, Attribute::PluginsEnabled, Attribute::PdfViewerEnabled,
        Attribute::FullScreenSupportEnabled, Attribute::HyperlinkAuditingEnabled,
        Attribute::DnsPrefetchEnabled, Attribute::AutoLoadIconsForPage, Attribute::WebGLEnabled,
        Attribute::NavigateOnDropEnabled, Attribute::FocusOnNavigationEnabled, Attribute::ErrorPageEnabled})
    settings.setAttribute(off, false);
  // The photo lies beside the page; what else lies on the disk is kept out by the interceptor.
  settings.setAttribute(Attribute::LocalContentCanAccessFileUrls, true);
  settings.setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
  // A template that does not tell its code page is one of the workspace.
  settings.setDefaultTextEncoding(QStringLiteral("windows-1252"));
}

}  // namespace

bool FolderInterceptor::Allows(const QUrl& url) const {
  if (url == QUrl(BlankAddress)) return true;
  if (folder_.isEmpty() || !url.isLocalFile() || !url.host().isEmpty()) return false;
  const QString file = QFileInfo(url.toLocalFile()).canonicalFilePath();
  const QString folder = QFileInfo(folder_).canonicalFilePath();
  return !file.isEmpty() && !folder.isEmpty() && file.startsWith(folder + QLatin1Char('/'));
}

void FolderInterceptor::interceptRequest(QWebEngineUrlRequestInfo& request) {
  if (!Allows(request.requestUrl())) request.block(true);
}

// The page goes nowhere by itself: no link, form or refresh leads it away.
class CvPageView::Page : public QWebEnginePage {
 public:
  using QWebEnginePage::QWebEnginePage;

  QUrl shown;

 protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override {
    if (!isMainFrame) return true;  // the interceptor decides
    const bool ours = type == NavigationTypeTyped || type == NavigationTypeReload;
    return url == QUrl(BlankAddress) || (ours && url == shown);
  }
};

CvPageView::CvPageView(QWidget* parent) : QWebEngineView(parent) {
  // Off the record: a profile without a name keeps nothing.
  auto* profile = new QWebEngineProfile(this);
  profile->setUrlRequestInterceptor(&interceptor_);
  profile->setHttpCacheType(QWebEngineProfile::NoCache);
  page_ = new Page(profile, this);
  page_->setBackgroundColor(Qt::white);
  BuildWalls(*page_->settings());
  setPage(page_);
  setContextMenuPolicy(Qt::NoContextMenu);
  setAcceptDrops(false);
  connect(page_, &QWebEnginePage::loadFinished, this, &CvPageView::FitPage);
}

// The page goes before its profile.
CvPageView::~CvPageView() { delete page_; }

// A narrow view shows the page smaller, rather than cut.
void CvPageView::FitPage() {
  constexpr double WholePage = 640;
  constexpr double Smallest = 0.6;
  const double fit = std::clamp(width() / WholePage, Smallest, 1.0);
  if (!qFuzzyCompare(fit, zoomFactor())) setZoomFactor(fit);
}

void CvPageView::resizeEvent(QResizeEvent* event) {
  QWebEngineView::resizeEvent(event);
  FitPage();
}

void CvPageView::ShowPage(const QString& path) {
  const QUrl url = QUrl::fromLocalFile(path);
  interceptor_.SetFolder(QFileInfo(path).path());
  if (page_->url() == url) return page_->triggerAction(QWebEnginePage::ReloadAndBypassCache);
  page_->shown = url;
  page_->load(url);
}

void CvPageView::ShowBlank() {
  page_->shown.clear();
  page_->load(QUrl(BlankAddress));
}

void CvPreview::Navigate(TextView address) {
  location_ = address;
  if (!view_) return;
  if (address.starts_with(u"about:"))
    view_->ShowBlank();
  else
    view_->ShowPage(ToQt(address));
}

}  // namespace talvor
