// The live page of the editor of CVs: it holds whatever the user has pasted, so it reaches no further
// than the folder that its template and photo lie in.
#pragma once

#include <QPointer>
#include <QWebEngineView>

#include "platform/browser.h"

namespace talvor {

class SealedPage;

class CvPageView : public QWebEngineView {
 public:
  explicit CvPageView(QWidget* parent);

  // Shows a page given by its full path. A page that is on show already is read anew and keeps its
  // scroll position.
  void ShowPage(const QString& path);
  // Blank paper.
  void ShowBlank();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FitPage();

  SealedPage* page_;
};

// The preview of the form `FormRédigerCV`: the real part of its `WebBrowser1`. Without a view it only
// remembers the address.
class CvPreview : public Browser {
 public:
  void SetView(CvPageView* view) { view_ = view; }
  void Navigate(TextView address) override;
  Text LocationURL() const override { return location_; }

 private:
  QPointer<CvPageView> view_;
  Text location_{BlankPage};
};

}  // namespace talvor
