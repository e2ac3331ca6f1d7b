#pragma once

#include <QWidget>
#include <functional>

#include "desktop/widgets/theme.h"

namespace talvor {

// The decorative road of the home panel, from the CV to the interview. Hidden from assistive tools.
class RoadPicture : public QWidget {
 public:
  RoadPicture(const Theme& theme, QWidget* parent);

  // Where a figure stands that sets out on it.
  [[nodiscard]] QPoint BeginningOfRoad() const;
  std::function<void()> OnResized;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] double Scale() const;
  void PaintHills(QPainter& painter) const;
  void PaintStations(QPainter& painter) const;

  const Theme& theme_;
};

}  // namespace talvor
