// The live page of the editor of CVs, and the walls around it: the page holds whatever the user has
// pasted, so no script runs in it, nothing is fetched from elsewhere, and of the disk it sees its own
// folder alone.
#pragma once

#include <QPointer>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>
#include <functional>

#include "platform/browser.h"

namespace talvor {

// Lets through what lies in one folder, links followed; everything else is blocked.
class FolderInterceptor : public QWebEngineUrlRequestInterceptor {
 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

  // The folder of the page to be shown; empty lets nothing through.
  void SetFolder(const QString& folder) { folder_ = folder; }
  [[nodiscard]] bool Allows(const QUrl& url) const;
  void interceptRequest(QWebEngineUrlRequestInfo& request) override;

 private:
  QString folder_;
};

class CvPageView : public QWebEngineView {
 public:
  explicit CvPageView(QWidget* parent);
  ~CvPageView() override;

  // Shows a page given by its full path. A page that is on show already is read anew and keeps its
  // scroll position.
  void ShowPage(const QString& path);
  // Blank paper.
  void ShowBlank();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FitPage();
  class Page;

  FolderInterceptor interceptor_;
  Page* page_;
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
