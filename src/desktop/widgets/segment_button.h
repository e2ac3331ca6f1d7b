// One of several exclusive buttons in a frame; the chosen one is bold, for which it keeps the room.
#pragma once

#include <QPushButton>

namespace talvor {

class SegmentButton : public QPushButton {
 public:
  SegmentButton(const QString& caption, QWidget* parent);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

}  // namespace talvor
