#include "desktop/widgets/icon_tile.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStringList>
#include <algorithm>

namespace talvor {
namespace {

constexpr int PictureSize = 22;
constexpr int HoverPictureSize = 26;
constexpr int SlotFont = 11;
constexpr int CaptionTop = 29;

}  // namespace

QStringList TwoLines(const QString& name, const QFontMetrics& metrics, int width) {
  QStringList lines;
  QString line;
  const QStringList words = name.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  for (const QString& word : words) {
    const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
    const bool fits = metrics.horizontalAdvance(longer) <= width;
    if (!line.isEmpty() && !fits && lines.isEmpty()) {
      lines.append(line);
      line = word;
    } else {
      line = longer;
    }
  }
  lines.append(line);
  for (QString& shown : lines) shown = metrics.elidedText(shown, Qt::ElideRight, width);
  return lines;
}

int IconTile::Height() { return CaptionTop + 2 * TextPixels(CaptionLine) + 3; }

IconTile::IconTile(const Theme& theme, QSize size, QWidget* parent)
    : QAbstractButton(parent), theme_(theme), size_(size) {
  setFocusPolicy(Qt::StrongFocus);
  setFixedSize(size);
  connect(&theme, &Theme::Changed, this, qOverload<>(&QWidget::update));
}

void IconTile::SetLook(const Look& look) {
  if (look == look_) return;
  look_ = look;
  update();
}

void IconTile::SetCompact(bool compact) {
  if (compact == compact_) return;
  compact_ = compact;
  // The picture with its badge fits in.
  constexpr int CompactWidth = 40;
  setFixedSize(compact ? QSize(CompactWidth + TextPixels(6), size_.height()) : size_);
  update();
}

QString IconTile::Tone() const {
  if (look_.current) return QStringLiteral("onpsoft");
  if (look_.free) return QStringLiteral("new");
  return over_ ? QStringLiteral("text") : QStringLiteral("text2");
}

void IconTile::PaintPlane(QPainter& painter) const {
  constexpr int Radius = 8;
  const QRectF plane = QRectF(rect()).adjusted(1, 1, -1, -1);
  painter.setPen(Qt::NoPen);
  if (look_.current || over_) {
    const bool slot = text().isEmpty();
    painter.setBrush(theme_.Color(slot ? QStringLiteral("surface") : QStringLiteral("sunken")));
    painter.drawRoundedRect(plane, Radius, Radius);
  }
  if (look_.current) {
    painter.setBrush(theme_.Color(QStringLiteral("primary")));
    painter.drawRoundedRect(QRectF(14, height() - 3, width() - 28, 2), 1, 1);
  }
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme_.Color(QStringLiteral("focus")), 2));
    painter.drawRoundedRect(plane, Radius, Radius);
  }
}

void IconTile::PaintCaption(QPainter& painter, const QRect& room) const {
  QFont face = font();
  face.setPixelSize(TextPixels(text().isEmpty() ? SlotFont : CaptionFont));
  if (look_.current) face.setWeight(QFont::DemiBold);
  painter.setFont(face);
  painter.setPen(theme_.Color(Tone()));
  if (!text().isEmpty()) {
    painter.drawText(room, Qt::AlignCenter | Qt::TextShowMnemonic, text());
    return;
  }
  const QFontMetrics metrics(face);
  const QStringList lines = TwoLines(look_.caption, metrics, room.width());
  const int lineHeight = TextPixels(CaptionLine);
  int y = room.center().y() - static_cast<int>(lines.size()) * lineHeight / 2 + 1;
  for (const QString& line : lines) {
    painter.drawText(QRect(room.left(), y, room.width(), lineHeight + 2), Qt::AlignHCenter | Qt::AlignVCenter,
                     line);
    y += lineHeight;
  }
}

void IconTile::PaintBadge(QPainter& painter, const QRect& picture) const {
  QFont face = font();
  face.setPixelSize(TextPixels(10));
  face.setWeight(QFont::Bold);
  const int wide = QFontMetrics(face).horizontalAdvance(look_.badge) + 6;
  const QRect badge(std::min(picture.right() - 5, width() - wide - 1), picture.top() - 4, wide,
                    TextPixels(14));
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme_.Color(QStringLiteral("newsoft")));
  painter.drawRoundedRect(badge, 4, 4);
  painter.setFont(face);
  painter.setPen(theme_.Color(QStringLiteral("new")));
  painter.drawText(badge, Qt::AlignCenter, look_.badge);
}

void IconTile::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintPlane(painter);

  const int side = over_ && text().isEmpty() ? HoverPictureSize : PictureSize;
  const int middle = compact_ ? height() / 2 : 17;
  const QRect picture((width() - side) / 2, middle - side / 2, side, side);
  painter.drawPixmap(picture, theme_.Pixmap(look_.icon, Tone(), side, devicePixelRatioF()));
  if (!look_.badge.isEmpty()) PaintBadge(painter, picture);
  if (!compact_) PaintCaption(painter, QRect(3, CaptionTop, width() - 6, height() - CaptionTop - 3));
}

void IconTile::Hover(bool over) {
  over_ = over;
  update();
  if (OnHover) OnHover(over);
}

void IconTile::enterEvent(QEnterEvent* event) {
  Hover(true);
  QAbstractButton::enterEvent(event);
}

void IconTile::leaveEvent(QEvent* event) {
  Hover(false);
  QAbstractButton::leaveEvent(event);
}

void IconTile::focusInEvent(QFocusEvent* event) {
  Hover(true);
  QAbstractButton::focusInEvent(event);
}

void IconTile::focusOutEvent(QFocusEvent* event) {
  Hover(underMouse());
  QAbstractButton::focusOutEvent(event);
}

void IconTile::mousePressEvent(QMouseEvent* event) {
  byPointer_ = true;
  QAbstractButton::mousePressEvent(event);
}

void IconTile::contextMenuEvent(QContextMenuEvent* event) {
  if (!OnMenu) return QAbstractButton::contextMenuEvent(event);
  event->accept();
  OnMenu();
}

void IconTile::mouseDoubleClickEvent(QMouseEvent* event) {
  if (OnOpen && event->button() == Qt::LeftButton) OnOpen();
}

void IconTile::keyPressEvent(QKeyEvent* event) {
  byPointer_ = false;
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && event->modifiers().testFlag(Qt::ControlModifier) && OnOpen) return OnOpen();
  if (enter) return click();
  if (OnArrow && (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right))
    return OnArrow(event->key() == Qt::Key_Left ? -1 : 1);
  if (OnKey && (event->key() == Qt::Key_F2 || event->key() == Qt::Key_Delete)) return OnKey(event->key());
  QAbstractButton::keyPressEvent(event);
}

}  // namespace talvor
