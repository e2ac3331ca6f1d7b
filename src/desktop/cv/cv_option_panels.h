// The option panels of the editor of CVs, of which one at most stands above the page.
#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "cv/colours.h"
#include "cv/editor.h"
#include "desktop/widgets/theme.h"

class QCheckBox;
class QListWidget;
class QPushButton;
class QVBoxLayout;

namespace talvor {

class CvOptionPanels : public QWidget {
 public:
  CvOptionPanels(const Theme& theme, QWidget* parent);

  std::function<void(std::size_t row)> OnTemplate;
  std::function<void(std::size_t font)> OnFont;
  std::function<void(std::size_t check)> OnParagraph;
  std::function<void(std::size_t swatch)> OnSwatch;
  std::function<void()> OnOtherColour;  // `BoutonTLV3`

  // Shows the open panel, if any, with what the form says.
  void Show(const FormRedigerCV& form);
  // Steps through the rows of the open list, for the keyboard of the field above it; the row chosen.
  void StepTemplate(int step);
  [[nodiscard]] int CurrentTemplate() const;
  [[nodiscard]] bool TemplatesStand() const { return !panels_[0]->isHidden(); }

 private:
  QWidget* MakePanel(const char16_t* name);
  void MakeTemplates();
  void MakeFonts();
  void MakeParagraphs();
  void MakeColours();
  QPushButton* MakeSwatch(std::size_t index, QWidget* panel);
  void ShowTemplates(const FormRedigerCV& form);

  const Theme& theme_;
  QVBoxLayout* column_;
  std::array<QWidget*, 4> panels_{};  // in the order of FormRedigerCV::Panel, None left out
  std::size_t made_ = 0;
  QListWidget* templates_ = nullptr;
  std::array<QPushButton*, 6> fonts_{};
  std::array<QCheckBox*, 4> paragraphs_{};
  std::array<QPushButton*, Swatches.size()> swatches_{};
  std::array<QWidget*, 2> samples_{};  // of the main and the pale colour
};

}  // namespace talvor
