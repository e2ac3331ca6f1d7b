#include "desktop/web_browser.h"

#include <QUrl>
#include <QWebEngineView>

#include "desktop/text_edge.h"

namespace talvor {

void WebBrowser::Navigate(TextView address) {
  location_ = address;
  if (!view_ && address != BlankPage && makeView) view_ = makeView();
  if (view_) view_->load(QUrl::fromUserInput(ToQt(address)));
}

Text WebBrowser::LocationURL() const {
  if (!view_ || view_->url().isEmpty()) return location_;
  return FromQt(view_->url().toString());
}

void WebBrowser::Forget() {
  view_ = nullptr;
  location_ = BlankPage;
}

}  // namespace talvor
