// A page of the internet in the browser pane, and the walls between it and the machine.
#pragma once

#include <QWebEnginePage>
#include <functional>

#include "desktop/browser/page_boxes.h"
#include "platform/dialogs.h"

namespace talvor {

class WebPage : public QWebEnginePage {
 public:
  WebPage(QWebEngineProfile* profile, Dialogs& dialogs, QObject* parent);

  // The page opens boxes without end and has been ended.
  std::function<void()> OnEndless;
  // The page is about to make place for another address, or for the one that this leads on to.
  std::function<void(const QUrl& address, bool redirected)> OnNavigation;

  // Ends the process that runs the page, whatever its scripts are at. False when there is none.
  bool EndProcess();

  // True for an address that the pane shows: of the web, the start page, a page in itself. Never a file.
  [[nodiscard]] static bool Shows(const QUrl& address);

 protected:
  bool acceptNavigationRequest(const QUrl& address, NavigationType type, bool isMainFrame) override;
  void javaScriptAlert(const QUrl& origin, const QString& text) override;
  bool javaScriptConfirm(const QUrl& origin, const QString& text) override;
  bool javaScriptPrompt(const QUrl& origin, const QString& text, const QString& proposed,
                        QString* answer) override;
  // Scripts write their complaints for their makers.
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) override {
  }

 private:
  [[nodiscard]] bool GrantBox();

  Dialogs& dialogs_;
  PageBoxes boxes_;
};

}  // namespace talvor
