#include "desktop/cv/cv_page_view.h"

#include <algorithm>

#include "desktop/platform/sealed_page.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {

CvPageView::CvPageView(QWidget* parent) : QWebEngineView(parent), page_(new SealedPage(Reach::Folder, this)) {
  setPage(page_);
  setContextMenuPolicy(Qt::NoContextMenu);
  setAcceptDrops(false);
  connect(page_, &QWebEnginePage::loadFinished, this, &CvPageView::FitPage);
}

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

void CvPageView::ShowPage(const QString& path) { page_->ShowFile(path); }

void CvPageView::ShowBlank() { page_->ShowBlank(); }

void CvPreview::Navigate(TextView address) {
  location_ = address;
  if (!view_) return;
  if (address.starts_with(u"about:"))
    view_->ShowBlank();
  else
    view_->ShowPage(ToQt(address));
}

}  // namespace talvor
