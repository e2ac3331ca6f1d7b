#include "desktop/widgets/card_button.h"

#include <QKeyEvent>
#include <QPainter>

namespace talvor {

CardButton::CardButton(const Theme& theme, QWidget* parent) : QAbstractButton(parent), theme_(theme) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  connect(&theme, &Theme::Changed, this, qOverload<>(&QWidget::update));
}

bool CardButton::Lit() const { return isEnabled() && (underMouse() || hasFocus() || isDown()); }

QColor CardButton::Ink(const QString& token) const {
  return theme_.Color(isEnabled() ? token : QStringLiteral("edge"));
}

void CardButton::PaintCard(QPainter& painter, const QString& border) const {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(theme_.Color(Lit() ? QStringLiteral("psoft") : QStringLiteral("surface")));
  painter.setPen(QPen(theme_.Color(Lit() ? QStringLiteral("primary") : border), 1));
  painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), 8, 8);
  if (!hasFocus()) return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(theme_.Color(QStringLiteral("focus")), 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 10, 10);
}

void CardButton::PaintTile(QPainter& painter, const QRect& tile, const QString& icon, int picture) const {
  constexpr int Radius = 10;
  const QString ink = Lit() ? QStringLiteral("onprimary") : QStringLiteral("primary");
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme_.Color(Lit() ? QStringLiteral("primary") : QStringLiteral("psoft")));
  painter.drawRoundedRect(tile, Radius, Radius);
  painter.drawPixmap(
      tile.center() - QPoint(picture / 2 - 1, picture / 2 - 1),
      theme_.Pixmap(icon, isEnabled() ? ink : QStringLiteral("edge"), picture, devicePixelRatioF()));
}

void CardButton::enterEvent(QEnterEvent* event) {
  update();
  QAbstractButton::enterEvent(event);
}

void CardButton::leaveEvent(QEvent* event) {
  update();
  QAbstractButton::leaveEvent(event);
}

void CardButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
  QAbstractButton::keyPressEvent(event);
}

}  // namespace talvor
