// The grid of the languages of a CV: nine rows, four levels. One stop of the Tab key; arrows move in it.
#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "cv/cv_document.h"

class QCheckBox;

namespace talvor {

class CvLanguageGrid : public QWidget {
 public:
  explicit CvLanguageGrid(QWidget* parent);

  // A click on a box of the check group of that name.
  std::function<void(TextView group, std::size_t language)> OnClick;

  void Show(const CvDocument& cv);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static constexpr std::size_t Levels = 4;

  void MakeBox(std::size_t language, std::size_t level);
  void MoveTo(std::size_t language, std::size_t level);

  std::array<std::array<QCheckBox*, Levels>, LanguageCount> boxes_{};
};

}  // namespace talvor
