// The right pane of the editor of CVs: the five entries, how the page looks, and the page.
#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "cv/editor.h"
#include "desktop/cv/cv_option_panels.h"
#include "desktop/cv/cv_page_view.h"
#include "desktop/widgets/theme.h"

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace talvor {

class FoldingRow;

class CvPagePane : public QWidget {
 public:
  CvPagePane(const Theme& theme, QWidget* parent);

  std::function<void(std::size_t entry, QWidget& button)> OnEntry;
  std::function<void()> OnTemplates;  // `Image2`
  std::function<void()> OnFonts;      // `Image3`
  std::function<void(std::size_t check)> OnDisposition;

  void Show(const FormRedigerCV& form);
  [[nodiscard]] CvOptionPanels& Panels() { return *panels_; }
  [[nodiscard]] CvPageView& View() { return *view_; }

 protected:
  // The arrows step through the open list of the field that has the focus.
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Fit();
  [[nodiscard]] static int EntryPadding(bool icons);
  [[nodiscard]] int EntriesWidth(bool icons) const;
  QWidget* MakeEntries();
  QWidget* MakeOptions();
  static void GiveRoom(QLineEdit& field, const QString& entry);
  QLineEdit* MakeChoice(const char16_t* name, const QString& image, const QString& spoken,
                        std::function<void()> CvPagePane::* open, QWidget* bar);
  void StepFont(int step);
  void AddChevron(QPushButton& entry);

  const Theme& theme_;
  std::array<QPushButton*, 5> entries_{};
  FoldingRow* options_ = nullptr;
  QLineEdit* template_ = nullptr;
  QLineEdit* font_ = nullptr;
  std::array<QCheckBox*, 2> dispositions_{};
  std::array<QLabel*, 2> captions_{};  // of the template and the font
  CvOptionPanels* panels_;
  CvPageView* view_;
};

}  // namespace talvor
