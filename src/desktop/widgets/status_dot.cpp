#include "desktop/widgets/status_dot.h"

#include <QPainter>

namespace talvor {
namespace {

enum class Shape { Ring, Disc, Square, HollowSquare, Diamond };

struct Family {
  Shape shape;
  const char16_t* token;
};

Family FamilyOf(TextView status) {
  if (Contains(status, u"REFUS NET")) return {Shape::Square, u"bad"};
  if (Contains(status, u"REFUS")) return {Shape::HollowSquare, u"bad"};
  if (Contains(status, u"SANS REPONSE")) return {Shape::Ring, u"warn"};
  if (Contains(status, u"ENTRETIEN")) return {Shape::Diamond, u"visit"};
  if (Contains(status, u"EMBAUCHE")) return {Shape::Disc, u"ok"};
  if (Contains(status, u"ATTENTE")) return {Shape::Disc, u"warn"};
  return {Shape::Ring, u"new"};
}

void Draw(QPainter& painter, Shape shape, const QColor& colour) {
  const QPen outline(colour, 2);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  switch (shape) {
    case Shape::Ring:
      painter.setPen(outline);
      painter.setBrush(Qt::NoBrush);
      painter.drawEllipse(QRectF(2.5, 2.5, 7, 7));
      return;
    case Shape::Disc:
      painter.drawEllipse(QRectF(1.5, 1.5, 9, 9));
      return;
    case Shape::Square:
      painter.drawRoundedRect(QRectF(2, 2, 8, 8), 1.5, 1.5);
      return;
    case Shape::HollowSquare:
      painter.setPen(outline);
      painter.setBrush(Qt::NoBrush);
      painter.drawRoundedRect(QRectF(3, 3, 6, 6), 1, 1);
      return;
    case Shape::Diamond:
      painter.drawPolygon(QPolygonF({{6, 0.8}, {11.2, 6}, {6, 11.2}, {0.8, 6}}));
      return;
  }
}

}  // namespace

QIcon StatusDot(const Theme& theme, TextView status) {
  if (status.empty()) return {};
  constexpr int Side = 12;
  constexpr int Ratio = 2;
  const Family family = FamilyOf(status);
  QPixmap pixmap(Side * Ratio, Side * Ratio);
  pixmap.fill(Qt::transparent);
  pixmap.setDevicePixelRatio(Ratio);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  Draw(painter, family.shape, theme.Color(QString::fromUtf16(family.token)));
  return pixmap;
}

}  // namespace talvor
