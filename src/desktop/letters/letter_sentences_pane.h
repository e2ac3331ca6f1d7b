#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "desktop/widgets/theme.h"
#include "letters/letter_model.h"

class QAbstractButton;
class QPushButton;
class QPlainTextEdit;

namespace talvor {

// The five sentence groups: a card each with its sentence, "Précédent" and "Suivant".
class LetterSentencesPane : public QWidget {
 public:
  LetterSentencesPane(const Theme& theme, QWidget* parent);

  std::function<void(std::size_t group)> OnPrevious, OnNext;
  std::function<void()> OnPropositions;

  [[nodiscard]] QPlainTextEdit& Sentence(std::size_t group) { return *sentences_[group]; }
  [[nodiscard]] const QList<QWidget*>& Fields() const { return fields_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* MakeHead();
  QWidget* MakeCard(std::size_t group, const QString& name, QWidget* parent);
  QWidget* MakeCardHead(std::size_t group, const QString& name, QWidget* card);
  [[nodiscard]] QPushButton* MakeButton(std::size_t group, const QString& name, bool next, QWidget* head);

  const Theme& theme_;
  std::array<QPlainTextEdit*, CorpsCount> sentences_{};
  QList<QAbstractButton*> steps_;
  QList<QWidget*> fields_;  // in the order of reading
};

}  // namespace talvor
