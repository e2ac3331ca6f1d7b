// What a window does where the screen is too small for it: rows fold, forms and pages scroll.
#pragma once

#include <QDialog>
#include <QScrollArea>
#include <QStackedWidget>

class QBoxLayout;
class QVBoxLayout;

namespace talvor {

// A row whose parts stand one below the other where they have no room side by side.
class FoldingRow : public QWidget {
 public:
  explicit FoldingRow(QWidget* parent);
  [[nodiscard]] QBoxLayout& Row() { return *row_; }
  [[nodiscard]] bool Folded() const;
  // Of a row that stands on one line. A minimum height would hold for both lines of a folded one as well.
  void SetLeastHeight(int height) { leastHeight_ = height; }
  // The least width with all parts side by side.
  [[nodiscard]] int WholeWidth() const;

  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Fold();

  QBoxLayout* row_;
  int leastHeight_ = 0;
};

// A form that scrolls up and down; it is never narrower than its fields need.
class PaneScroll : public QScrollArea {
 public:
  explicit PaneScroll(QWidget* parent);
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

// The pages of a window, of which the one in front alone says what room is needed.
class PageStack : public QStackedWidget {
 public:
  explicit PageStack(QWidget* parent);
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] int heightForWidth(int width) const override;
};

// A window over the main one. It opens as large as its content asks, but no larger than the main window, and
// scrolls what does not fit; its foot stays in view.
class ScrollingDialog : public QDialog {
 public:
  explicit ScrollingDialog(QWidget* parent);

 protected:
  // Takes a layout with the content.
  [[nodiscard]] QWidget* Body() { return body_; }
  void AddFoot(QWidget* foot);
  // The size with enough room; a height of 0 is that of the content.
  void SetWanted(QSize wanted) { wanted_ = wanted; }
  // Takes the size that the content asks for now.
  void FitContent();
  void setVisible(bool visible) override;

 private:
  QSize wanted_;
  bool fitted_ = false;
  QVBoxLayout* column_;
  QScrollArea* scroll_;
  QWidget* body_;
};

// Has the layouts around a widget ask again for its size, once the layout under way is done. What a layout
// keeps of a widget that was hidden or without its style may be out of date further out as well.
void TellLayouts(QWidget& widget);

// The largest size of a window over that one; without one, the size of the screen.
[[nodiscard]] QSize RoomOver(const QWidget* frame);

}  // namespace talvor
