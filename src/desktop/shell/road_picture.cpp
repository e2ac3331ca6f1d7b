#include "desktop/shell/road_picture.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace talvor {
namespace {

constexpr QSizeF Canvas{408, 292};

}  // namespace

RoadPicture::RoadPicture(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
  setFixedHeight(static_cast<int>(Canvas.height()));
  connect(&theme, &Theme::Changed, this, qOverload<>(&QWidget::update));
}

void RoadPicture::PaintHills(QPainter& painter) const {
  QColor hill = theme_.Color(QStringLiteral("surface"));
  QPainterPath far(QPointF(0, 232));
  far.cubicTo(40, 216, 70, 250, 118, 240);
  far.cubicTo(190, 224, 214, 140, 290, 132);
  far.cubicTo(350, 128, 372, 100, 408, 60);
  far.lineTo(408, 292);
  far.lineTo(0, 292);
  hill.setAlphaF(0.35F);
  painter.fillPath(far, hill);
  QPainterPath near(QPointF(0, 276));
  near.cubicTo(60, 256, 120, 272, 184, 248);
  near.cubicTo(250, 222, 310, 186, 408, 180);
  near.lineTo(408, 292);
  near.lineTo(0, 292);
  hill.setAlphaF(0.6F);
  painter.fillPath(near, hill);
}

void RoadPicture::PaintStations(QPainter& painter) const {
  const QColor ink = theme_.Color(QStringLiteral("primary"));
  QPen dotted(ink, 2.6, Qt::CustomDashLine, Qt::RoundCap);
  dotted.setDashPattern({0.1, 2.6});
  painter.setBrush(Qt::NoBrush);
  painter.setPen(dotted);
  QPainterPath road(QPointF(86, 200));
  road.cubicTo(98, 192, 104, 186, 114, 181);
  road.moveTo(178, 175);
  road.cubicTo(188, 177, 196, 175, 205, 172);
  road.moveTo(236, 126);
  road.cubicTo(246, 102, 276, 106, 310, 92);
  painter.drawPath(road);

  painter.setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(theme_.Color(QStringLiteral("surface")));
  // The CV.
  painter.drawRoundedRect(QRectF(32, 196, 52, 62), 6, 6);
  painter.drawEllipse(QPointF(58, 216), 7, 7);
  painter.drawPath([] {
    QPainterPath shoulders(QPointF(46, 234));
    shoulders.cubicTo(47, 224, 69, 224, 70, 234);
    return shoulders;
  }());
  painter.drawLine(46, 243, 70, 243);
  painter.drawLine(46, 249, 61, 249);
  // The letter.
  painter.drawRoundedRect(QRectF(116, 146, 58, 44), 6, 6);
  painter.drawPolyline(QPolygonF({{119, 151}, {145, 172}, {171, 151}}));
  // The candidature.
  painter.drawRoundedRect(QRectF(226, 125, 20, 14), 4, 4);
  painter.drawRoundedRect(QRectF(206, 134, 60, 44), 6, 6);
  painter.drawPath([] {
    QPainterPath strap(QPointF(206, 148));
    strap.cubicTo(226, 160, 246, 160, 266, 148);
    return strap;
  }());
  painter.drawLine(236, 154, 236, 161);
  // The interview.
  painter.drawRoundedRect(QRectF(310, 34, 58, 58), 6, 6);
  painter.drawLine(310, 53, 368, 53);
  painter.drawLine(327, 28, 327, 40);
  painter.drawLine(351, 28, 351, 40);
  painter.setPen(QPen(theme_.Color(QStringLiteral("ok")), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(QPolygonF({{328, 74}, {335, 81}, {350, 64}}));
}

double RoadPicture::Scale() const { return std::min(1.0, width() / Canvas.width()); }

QPoint RoadPicture::BeginningOfRoad() const {
  constexpr QPointF Beginning{94, 226};
  return (Beginning * Scale() + QPointF((width() - Canvas.width() * Scale()) / 2, 0)).toPoint();
}

// In a narrow column the whole road is drawn smaller.
void RoadPicture::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  setFixedHeight(static_cast<int>(Canvas.height() * Scale()));
  if (OnResized) OnResized();
}

void RoadPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath frame;
  frame.addRoundedRect(QRectF(rect()), 16, 16);
  painter.setClipPath(frame);
  painter.fillRect(rect(), theme_.Color(QStringLiteral("psoft")));
  painter.translate((width() - Canvas.width() * Scale()) / 2, 0);
  painter.scale(Scale(), Scale());
  PaintHills(painter);
  const QColor sun = theme_.Color(QStringLiteral("today"));
  painter.setPen(QPen(sun, 1.5, Qt::DotLine));
  painter.drawEllipse(QPointF(70, 62), 34, 34);
  painter.setPen(Qt::NoPen);
  painter.setBrush(sun);
  painter.drawEllipse(QPointF(70, 62), 24, 24);
  PaintStations(painter);
}

}  // namespace talvor
