// The window of `FormPostuler`: the message with its checks, models, CVs and the way of sending.
#pragma once

#include <QTimer>
#include <array>
#include <functional>

#include "desktop/widgets/bouton_tlv.h"
#include "desktop/widgets/check_mark.h"
#include "desktop/widgets/field_binder.h"
#include "desktop/widgets/scrolling.h"
#include "sending/form_postuler.h"

class QGridLayout;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QRadioButton;
class QVBoxLayout;

namespace talvor {

class ApplyWindow : public ScrollingDialog {
 public:
  // The model must outlive the window.
  ApplyWindow(FormPostuler& form, const Theme& theme, QWidget* parent);

  // Called after each action, for what other windows show.
  std::function<void()> OnActed;
  // The user has closed the window.
  std::function<void()> OnClosed;

  // Runs an action of the view model and shows what has become of it. The window may be gone when the
  // action returns.
  void Do(const std::function<void()>& action);
  void Refresh();
  // What the timer calls each 1000 ms.
  void Tick1000();
  void StopTimer() { marksTimer_.stop(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* MakeMessage();
  void AddRow(QGridLayout* grid, const QString& caption, QWidget* field, std::size_t check);
  QLineEdit* Line(const QString& name, QWidget* parent);
  QWidget* MakeAttachment(QWidget* parent);
  QWidget* MakeChoices();
  QWidget* MakeCard(const QString& title, std::array<QPushButton*, 5>& rows, const QString& name,
                    std::function<void(std::size_t)> click, QVBoxLayout* column);
  void MakeWays(QWidget* parent, QVBoxLayout* column);
  QWidget* MakeFoot();
  void MainAction();
  void SetIcon(QAbstractButton& button, const QString& icon, const QString& token);
  void ShowChoices();
  void ShowDocuments();

  FormPostuler& form_;
  const Theme& theme_;
  Text emailDest_;  // as shown; typing goes from here to the form as a change
  FieldBinder binder_;
  std::array<CheckMarkLabel*, 5> marks_{};
  std::array<QPushButton*, 5> models_{}, cvs_{};
  std::array<QRadioButton*, 2> ways_{};
  QLineEdit* recipient_ = nullptr;
  QLineEdit* path_ = nullptr;  // of the attachment
  QListWidget* documents_ = nullptr;
  BoutonTLV* action_ = nullptr;
  BoutonTLV* online_ = nullptr;
  QTimer marksTimer_;
};

}  // namespace talvor
