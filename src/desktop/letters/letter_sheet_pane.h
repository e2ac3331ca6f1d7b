#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "desktop/widgets/theme.h"
#include "letters/form_lettre.h"

class QButtonGroup;
class QLabel;
class QPlainTextEdit;
class QVBoxLayout;

namespace talvor {

// The composed letter as a sheet of paper, its name, its kind, and what the user is to know about it.
class LetterSheetPane : public QWidget {
 public:
  LetterSheetPane(const Theme& theme, QWidget* parent);

  std::function<void()> OnRecompose;
  std::function<void(std::size_t)> OnModele, OnCandidature;

  // Shows what is no text: the flags, the frame of the subject, the notes. `edited` tells that the
  // letter has been changed by hand since it was composed.
  void ShowState(const FormLettre& form, bool edited);
  [[nodiscard]] QPlainTextEdit& Letter() { return *letter_; }
  [[nodiscard]] const QList<QWidget*>& Fields() const { return fields_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  // A line of text with an icon before it.
  struct Note {
    QWidget* line = nullptr;
    QLabel* icon = nullptr;
    QLabel* text = nullptr;
  };

  QWidget* MakeHead();
  QWidget* MakeObject(QWidget* parent);
  QWidget* MakePaper();
  QButtonGroup* MakeSegments(const QString& name, const QString& spoken,
                             const std::array<QString, 2>& captions,
                             std::function<void(std::size_t)> LetterSheetPane::* click, QVBoxLayout* column);
  Note MakeNote(const QString& name, QWidget* parent);
  void TellNote(const Note& note, const QString& icon, const QString& token, const QString& text);
  void TellNotes();
  void FitNotes();
  void FitLater();

  const Theme& theme_;
  QList<QWidget*> fields_;  // in the order of reading
  QButtonGroup* modele_ = nullptr;
  QButtonGroup* candidature_ = nullptr;
  QWidget* object_ = nullptr;
  QPlainTextEdit* letter_ = nullptr;
  Note edit_, failure_;
  bool edited_ = false;
};

}  // namespace talvor
