#pragma once

#include <QWidget>
#include <functional>

#include "desktop/widgets/theme.h"
#include "letters/form_lettre.h"

class QGridLayout;
class QLineEdit;
class QListWidget;

namespace talvor {

// The sender, what the sentences quote of the career, and the list of CVs to begin from.
class LetterSenderPane : public QWidget {
 public:
  LetterSenderPane(const Theme& theme, QWidget* parent);

  std::function<void(std::size_t)> OnCv;
  // The field has lost the focus to another one, not to another window.
  std::function<void()> OnLeaveEmail, OnLeavePrénom;

  void ShowCvs(const FormLettre& form);
  [[nodiscard]] const QList<QWidget*>& Fields() const { return fields_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* MakeIdentity();
  QWidget* MakeCareer();
  QWidget* MakeCvs();
  QLineEdit* Line(const QString& name, QWidget* parent);
  void AddRow(QGridLayout* grid, const QString& caption, QWidget* field);
  void AddPlace(QGridLayout* grid, QWidget* parent);
  void FillCvs();
  void ChooseCv(int row);

  const Theme& theme_;
  QList<QWidget*> fields_;  // in the order of reading
  QLineEdit* email_ = nullptr;
  QLineEdit* prenom_ = nullptr;
  QWidget* cvs_ = nullptr;
  QListWidget* list_ = nullptr;
  QStringList names_;
};

}  // namespace talvor
