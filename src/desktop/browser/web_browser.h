// The embedded browser: the real part of `DocumentBrowser`.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QVariant>
#include <QWebEngineView>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "desktop/browser/page_gesture.h"
#include "desktop/browser/web_page.h"
#include "desktop/browser/web_profile.h"
#include "platform/browser.h"

class QWebEngineLoadingInfo;

namespace talvor {

// What the pane shows around the page.
struct WebState {
  bool loading = false;
  int progress = 0;   // per cent
  QString notice;     // stands in the place of the page, if any
  QString offer;      // what the page offers to save without having been asked, if anything
  bool back = false;  // whether there is a page to go back to
  bool forward = false;
};

// Without a view it stands at the blank page; the view is made when the first other page is asked for.
// Questions to a page run an event loop for at most a few seconds; one that is not answered, because
// the page hangs or has gone, reads as empty.
class WebBrowser : public QObject, public DocumentBrowser {
 public:
  explicit WebBrowser(Dialogs& dialogs);

  // Makes the view in its pane; null while the form is not loaded.
  std::function<QWebEngineView*()> makeView;
  std::function<void()> OnLoaded;                // a document has been loaded, whatever its fate
  std::function<void(const WebState&)> OnState;  // what the pane shows has changed

  void Navigate(TextView address) override;
  Text LocationURL() const override;
  void GoBack() override;
  void GoForward() override;
  void Stop() override;
  int ReadyState() const override { return state_.loading ? 1 : Complete; }
  Text BodyText(std::size_t characters) override;
  Text BodyMarkup() override;
  void CopySelection() override;
  std::vector<PageElement> Elements(std::size_t count) override;
  void SetValues(const std::vector<ElementValue>& values) override;
  void SetNamedValue(TextView name, TextView value) override;

  // Loads again the page that a notice has replaced; one that could not be loaded is asked for anew.
  void Reload();
  // Saves the file that the page offers, or lets it go.
  void TakeOffer();
  void DismissOffer();
  // Once the user has agreed, forgets what all sites have kept here (their cookies, their data, the cache) and
  // loads the page again.
  void AskToClearStore();
  // The form is gone, and the view with it.
  void Forget();
  [[nodiscard]] QWebEngineView* View() const { return view_; }
  [[nodiscard]] const WebState& State() const { return state_; }
  // Made when first asked for.
  [[nodiscard]] WebProfile& Profile();

 private:
  bool EnsureView();
  void MakePage();
  // Goes on with an empty store, at an address.
  enum class Cookies { Kept, Forgotten };
  void EmptyStore(Cookies cookies, TextView address);
  void WatchStore();
  void Connect(WebProfile& profile);
  bool AskedByUser(const QUrl& download);
  void Follow(WebPage& page);
  void LoadingChanged(const QWebEngineLoadingInfo& info);
  void Terminated();
  void ShowNotice(const QString& notice);
  void Changed();
  QVariant Ask(const QString& script);
  // Runs a script on the page and waits for its answer; nothing when none has come in time.
  std::optional<QVariant> Run(const QString& script, int milliseconds);
  // Goes elsewhere, past a page whose scripts never come to rest.
  void Leave(const std::function<void(QWebEngineView&)>& go);

  Dialogs& dialogs_;
  std::unique_ptr<WebProfile> profile_;
  PageGesture gesture_;
  QUrl leadsTo_;            // where the page on show was last left for
  bool ledByUser_ = false;  // at a gesture of the user
  DownloadOffer offer_;
  QTimer storeTimer_;
  QPointer<QWebEngineView> view_;
  WebState state_;
  QUrl failed_;        // of the page that could not be loaded, while its notice stands
  bool deaf_ = false;  // a question has been left without an answer
  std::function<void(QWebEngineView&)> next_;  // once the process of the page before has ended
  bool endless_ = false;                       // the page has been ended for its boxes
  Text location_{BlankPage};                   // as last asked for, until the view answers
};

}  // namespace talvor
