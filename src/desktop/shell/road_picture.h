#pragma once

#include <QWidget>

#include "desktop/widgets/theme.h"

namespace talvor {

// The decorative road of the home panel, from the CV to the interview. Hidden from assistive tools.
class RoadPicture : public QWidget {
 public:
  RoadPicture(const Theme& theme, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintHills(QPainter& painter) const;
  void PaintStations(QPainter& painter) const;

  const Theme& theme_;
};

}  // namespace talvor
