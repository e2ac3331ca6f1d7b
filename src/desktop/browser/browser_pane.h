// The right pane of `FormCand`, `CadreWeb`: the bar of the browser, the capture strip and the page.
#pragma once

#include <QWidget>
#include <functional>

#include "capture/form_cand_web.h"
#include "desktop/browser/download_bar.h"
#include "desktop/browser/page_notice.h"
#include "desktop/browser/site_list.h"
#include "desktop/browser/web_browser.h"
#include "desktop/widgets/theme.h"

class QAction;
class QBoxLayout;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QStackedLayout;
class QToolButton;

namespace talvor {

class BrowserPane : public QWidget {
 public:
  BrowserPane(const Theme& theme, QWidget* parent);

  // What the user does, by the control: the object names are those of the form.
  struct Actions {
    std::function<void()> enter, address, go, stop, back, forward, start, strip, sites, leaveSites, capture,
        prefill, bring, reload, save, dismiss, clear;
    std::function<void(std::size_t)> site;
  };
  Actions on;

  [[nodiscard]] QLineEdit& Address() { return *address_; }
  // Makes the view of the page, once.
  QWebEngineView* MakeView();
  void FillSites(const SiteDirectory& directory) { sites_->Fill(directory); }
  // Shows the view model as it stands.
  void Show(const FormCandWeb& web);
  void ShowState(const WebState& state);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* MakeBar();
  QWidget* MakeStrip();
  QToolButton* AddTool(QBoxLayout& row, const QString& name, const QString& icon, const QString& text,
                       const QKeySequence& key, std::function<void()> Actions::* action);
  QPushButton* AddLink(const QString& icon, const QString& text, const QString& name,
                       std::function<void()> Actions::* action);
  void Act(std::function<void()> Actions::* action);
  void ShowBar();
  void ShowStrip(int top);
  void ShowGauge(double width);
  void ShowSites(bool shown);

  const Theme& theme_;
  QLineEdit* address_ = nullptr;
  QAction* globe_ = nullptr;
  QToolButton* back_ = nullptr;
  QToolButton* forward_ = nullptr;
  QToolButton* go_ = nullptr;
  QToolButton* stop_ = nullptr;
  QToolButton* open_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QWidget* strip_ = nullptr;
  QWidget* stripContent_ = nullptr;
  QProgressBar* gauge_ = nullptr;
  QBoxLayout* links_ = nullptr;
  QPushButton* bring_ = nullptr;
  SiteList* sites_ = nullptr;
  QWidget* place_ = nullptr;
  QStackedLayout* pages_ = nullptr;
  DownloadBar* offer_ = nullptr;
  PageNotice* notice_ = nullptr;
  QWebEngineView* view_ = nullptr;
  int top_ = FormCandWeb::StripClosed;
};

}  // namespace talvor
