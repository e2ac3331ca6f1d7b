// The window of `AssistantTexte`, with the decorative picture `Assistant` and the counts.
#pragma once

#include <QTimer>
#include <QWidget>
#include <array>
#include <functional>

#include "desktop/widgets/card_button.h"
#include "shell/home_panel.h"

class QGraphicsOpacityEffect;
class QLabel;
class QBoxLayout;
class QVBoxLayout;

namespace talvor {

// A row of the panel: a tile, a title, an explanation and a chevron.
class HomeRowButton : public CardButton {
 public:
  HomeRowButton(const Theme& theme, QWidget* parent);

  // The title in plain text, and where its mnemonic stands in it, -1 for none.
  void SetRow(const QString& icon, const HomeRow& row, qsizetype mnemonic);
  [[nodiscard]] const HomeRow& Row() const { return row_; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString icon_;
  HomeRow row_;
};

class HomeWindow : public QWidget {
 public:
  HomeWindow(AssistantTexte& panel, const Theme& theme, QWidget* parent);

  std::function<void()> OnActed;
  void Refresh();
  // Where the figure of `Assistant` stands.
  [[nodiscard]] QWidget* Road() const { return road_; }
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] int RowsWidth() const;
  void PlaceSide();
  QWidget* MakeRows();
  QWidget* MakeCounts();
  void BeginSlide();
  void Slide();
  void Click(const HomeRowButton& button);

  AssistantTexte& panel_;
  const Theme& theme_;
  QTimer slideTimer_;  // the slide of the rows
  QGraphicsOpacityEffect* fade_ = nullptr;
  QBoxLayout* columns_ = nullptr;
  QVBoxLayout* rowsColumn_ = nullptr;
  QWidget* side_;
  QWidget* road_;
  std::array<HomeRowButton*, 4> rows_{};
  std::array<QLabel*, 3> countNames_{};
  std::array<QLabel*, 3> counts_{};
};

}  // namespace talvor
