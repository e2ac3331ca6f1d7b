// The embedded browser: the real part of `Browser`.
#pragma once

#include <QPointer>
#include <QWebEngineView>
#include <functional>

#include "platform/browser.h"

namespace talvor {

// Without a view it stands at the blank page; the view is made when the first other page is asked for.
class WebBrowser : public Browser {
 public:
  // Makes the view in its pane; null while the form is not loaded.
  std::function<QWebEngineView*()> makeView;

  void Navigate(TextView address) override;
  Text LocationURL() const override;

  // The form is gone, and the view with it.
  void Forget();
  [[nodiscard]] QWebEngineView* View() const { return view_; }

 private:
  QPointer<QWebEngineView> view_;
  Text location_{BlankPage};  // as last asked for, until the view answers
};

}  // namespace talvor
