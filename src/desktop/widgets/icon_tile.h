// A picture over a caption of one or two lines: the buttons of the header and its slots.
#pragma once

#include <QAbstractButton>
#include <functional>

#include "desktop/widgets/theme.h"

namespace talvor {

class IconTile : public QAbstractButton {
  Q_OBJECT

 public:
  struct Look {
    QString icon;
    QString caption;  // no mnemonic mark
    QString badge;    // a kind beside the picture
    bool current = false;
    bool free = false;  // the entry that makes a new one
    bool operator==(const Look&) const = default;
  };

  // In pixels at the usual size of text.
  static constexpr int CaptionFont = 12;  // of a button that is no slot
  static constexpr int CaptionLine = 12;  // of two
  // What the picture and two lines need.
  [[nodiscard]] static int Height();

  IconTile(const Theme& theme, QSize size, QWidget* parent);

  void SetLook(const Look& look);
  [[nodiscard]] const Look& Shown() const { return look_; }
  // Draws the picture alone.
  void SetCompact(bool compact);

  std::function<void(bool over)> OnHover;  // pointer or focus comes and goes
  std::function<void()> OnOpen;            // double click, Ctrl+Enter
  std::function<void(int step)> OnArrow;   // -1 or 1
  std::function<void()> OnMenu;            // right click, menu key
  std::function<void(int key)> OnKey;      // F2, Del
  // The click under way is the pointer's: a second one may follow and make it a double click.
  [[nodiscard]] bool ByPointer() const { return byPointer_; }

  [[nodiscard]] QSize sizeHint() const override { return size_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Hover(bool over);
  void PaintPlane(QPainter& painter) const;
  void PaintCaption(QPainter& painter, const QRect& room) const;
  void PaintBadge(QPainter& painter, const QRect& picture) const;
  [[nodiscard]] QString Tone() const;

  const Theme& theme_;
  QSize size_;
  Look look_;
  bool compact_ = false;
  bool over_ = false;
  bool byPointer_ = false;
};

// A name on at most two lines of that width, cut at blanks, each elided when it is too long.
[[nodiscard]] QStringList TwoLines(const QString& name, const QFontMetrics& metrics, int width);

}  // namespace talvor
