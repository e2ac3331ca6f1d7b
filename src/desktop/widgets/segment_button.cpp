#include "desktop/widgets/segment_button.h"

#include <algorithm>

namespace talvor {

SegmentButton::SegmentButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
  setCheckable(true);
}

QSize SegmentButton::sizeHint() const {
  const auto wide = [this](const QFont& face) {
    return QFontMetrics(face).size(Qt::TextShowMnemonic, text()).width();
  };
  QFont bold = font();
  bold.setWeight(QFont::DemiBold);
  return QPushButton::sizeHint() + QSize(std::max(0, wide(bold) - wide(font())) + 2, 0);
}

}  // namespace talvor
