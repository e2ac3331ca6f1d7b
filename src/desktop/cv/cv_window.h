// The window of `FormRédigerCV`: zones and live page over the view model.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "cv/editor.h"
#include "desktop/cv/cv_page_pane.h"
#include "desktop/cv/cv_zones_pane.h"
#include "desktop/platform/qt_menus.h"
#include "desktop/widgets/field_binder.h"

class QSplitter;

namespace talvor {

class CvWindow : public QWidget {
 public:
  // The view model and the menus must outlive the window.
  CvWindow(FormRedigerCV& form, QtMenus& menus, const Theme& theme, QWidget* parent);
  ~CvWindow() override;

  // Called after each action, for what other windows show.
  std::function<void()> OnActed;
  // A help icon by its index; -1 when the pointer or the focus has left it.
  std::function<void(int icon)> OnHelp;

  // Runs an action of the view model and shows what has become of it. The window may be gone when the
  // action returns.
  void Do(const std::function<void()>& action);
  // Shows the view model as it stands.
  void Refresh();
  // The field with the focus is left, and what was typed is saved.
  void KeepTyping();

  [[nodiscard]] CvPageView& Page() { return page_->View(); }
  [[nodiscard]] CvPagePane& PagePane() { return *page_; }

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BindFields();
  void ConnectZones();
  void ConnectPage();
  void MoveFocus(QWidget* now);
  void LeaveField(const QString& name);
  void SaveWhileTyping();
  [[nodiscard]] QString FieldOf(const QWidget* widget) const;

  FormRedigerCV& form_;
  QtMenus& menus_;
  // What the window shows of the document: typing goes from here to the form as a change, so that the
  // rules of the form see it.
  CvDocument shown_;
  FieldBinder binder_;
  QSplitter* splitter_;
  CvZonesPane* zones_;
  CvPagePane* page_;
  bool narrow_ = false;
  QString focused_;  // the field that has not been left yet
  QTimer saving_;    // runs from an edit to its save
};

}  // namespace talvor
