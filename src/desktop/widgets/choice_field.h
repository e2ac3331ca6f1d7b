// A text field with a popup list beside it: the status and the contract.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <functional>

#include "desktop/widgets/theme.h"
#include "tracking/form_cand.h"

namespace talvor {

class ChoiceField : public QLineEdit {
 public:
  // `image` is the name of the picture that opens the list, `list` that of the list.
  ChoiceField(const Theme& theme, const QString& image, const QString& list, QWidget* parent);
  ~ChoiceField() override;

  void AddRow(const QString& text, const QIcon& icon = {});
  [[nodiscard]] bool HasRows() const { return !rows_.isEmpty(); }
  void SetRowIcon(int row, const QIcon& icon);

  std::function<void()> OnToggle;             // a click on the picture
  std::function<void(std::size_t)> OnChosen;  // a click on a row
  std::function<void()> OnLeave;              // the focus goes, or Esc closes the list

  // Shows or hides the list as the view model says.
  void ShowList(const ChoiceList& choice);
  [[nodiscard]] bool ListShown() const { return list_ && list_->isVisible(); }
  [[nodiscard]] QListWidget* List();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void PlaceList();
  void TakeIcons();

  const Theme& theme_;
  QString listName_;
  QAction* image_;
  QList<QPair<QString, QIcon>> rows_;
  QPointer<QListWidget> list_;
};

}  // namespace talvor
