// The window of `FormCand`: list, detail and browser pane over the view model.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "capture/form_cand_capture.h"
#include "desktop/browser/browser_pane.h"
#include "desktop/candidatures/candidature_detail_pane.h"
#include "desktop/candidatures/candidature_list_pane.h"
#include "desktop/widgets/field_binder.h"

class QLineEdit;
class QSplitter;

namespace talvor {

class FormCandWindow : public QWidget {
 public:
  FormCandWindow(FormCand& form, FormCandCapture& capture, FormCandWeb& web, WebBrowser& browser,
                 const Theme& theme, QWidget* parent);
  ~FormCandWindow() override;

  // Kept until the window is gone and its last action has returned: what owns the view models.
  std::shared_ptr<void> models;

  // Called after each action, for what other windows show.
  std::function<void()> OnActed;

  // The popup of a row, at a place of the screen.
  std::function<void(QPoint place)> OnItemMenu;

  // Runs an action of the view model and shows what has become of it. The window may be gone when the
  // action returns.
  void Do(const std::function<void()>& action);
  // Shows the view model as it stands.
  void Refresh();

  [[nodiscard]] CandidatureListPane& List() { return *list_; }
  [[nodiscard]] CandidatureDetailPane& Detail() { return *detail_; }
  [[nodiscard]] BrowserPane& Web() { return *web_; }
  // The ticks of both timers, for a program that does not wait.
  void Tick500();
  void Tick3000();
  void StopTimers();

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Bind();
  void ConnectList();
  void ConnectDetail();
  void ConnectWeb();
  void ShowRefusal();
  // Does that once the event under way is over. To leave a page for another may take a wait, in which the
  // form can be closed, and a field or a list must not go under its own event.
  void Later(const std::function<void()>& action);

  FormCand& form_;
  FormCandCapture& capture_;
  FormCandWeb& webModel_;
  WebBrowser& browser_;
  const Theme& theme_;
  FieldBinder binder_;
  std::vector<QLineEdit*> lines_;  // the fields of one line
  QSplitter* splitter_;
  CandidatureListPane* list_;
  CandidatureDetailPane* detail_;
  BrowserPane* web_;
  QTimer watchTimer_;
  QTimer saveTimer_;
  unsigned shownVersion_ = 0;
  std::optional<bool> narrow_;  // until the first layout
};

}  // namespace talvor
