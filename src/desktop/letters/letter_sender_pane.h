#pragma once

#include <QWidget>
#include <functional>

#include "desktop/widgets/theme.h"
#include "letters/form_lettre.h"

class QFormLayout;
class QLineEdit;
class QListWidget;
class QScrollArea;

namespace talvor {

// The sender, what the sentences quote of the career, and the list of CVs to begin from.
class LetterSenderPane : public QWidget {
 public:
  LetterSenderPane(const Theme& theme, QWidget* parent);

  std::function<void(std::size_t)> OnCv;
  // The field has lost the focus to another one, not to another window.
  std::function<void()> OnLeaveEmail, OnLeavePrenom;

  void ShowCvs(const FormLettre& form);
  [[nodiscard]] QWidget& Name() { return *name_; }
  [[nodiscard]] const QList<QWidget*>& Fields() const { return fields_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* MakeIdentity();
  QWidget* MakeCareer();
  QWidget* MakeCvs();
  QLineEdit* Line(const QString& name, QWidget* parent);
  // `usual` is a text that the field shows whole.
  static void AddRow(QFormLayout* grid, const QString& caption, QWidget* field, const QString& usual);
  void AddPlace(QFormLayout* grid, QWidget* parent);
  void FillCvs();
  void ChooseCv(int row);

  void FitForms();

  const Theme& theme_;
  QScrollArea* scroll_ = nullptr;
  QFormLayout* identity_ = nullptr;
  QFormLayout* career_ = nullptr;
  QList<QWidget*> fields_;  // in the order of reading
  QWidget* name_ = nullptr;
  QLineEdit* email_ = nullptr;
  QLineEdit* prenom_ = nullptr;
  QWidget* cvs_ = nullptr;
  QListWidget* list_ = nullptr;
  QStringList names_;
};

}  // namespace talvor
