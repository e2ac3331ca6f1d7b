#include "desktop/candidatures/candidature_delegate.h"

#include <QPainter>
#include <algorithm>

#include "desktop/candidatures/candidature_tree_model.h"

namespace talvor {
namespace {

constexpr int LeafIndent = 26;
constexpr int DateWidth = 77;
constexpr int RightRoom = 8;

QFont Sized(QFont font, int pixels, QFont::Weight weight) {
  font.setPixelSize(TextPixels(pixels));
  font.setWeight(weight);
  return font;
}

// Draws what fits into the room from x on; the x behind it.
int DrawElided(QPainter& painter, int x, const QRect& row, int right, const QString& text) {
  const QFontMetrics metrics = painter.fontMetrics();
  const QString shown = metrics.elidedText(text, Qt::ElideRight, right - x);
  painter.drawText(QRect(x, row.top(), right - x, row.height()), Qt::AlignVCenter | Qt::TextSingleLine,
                   shown);
  return x + metrics.horizontalAdvance(shown);
}

}  // namespace

CandidatureDelegate::CandidatureDelegate(const Theme& theme, QObject* parent)
    : QStyledItemDelegate(parent), theme_(theme) {}

void CandidatureDelegate::SetFlash(const QString& key, int strength) {
  flashKey_ = key;
  flash_ = strength;
}

QSize CandidatureDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  // Larger texts of the system make higher rows.
  return {option.rect.width(), std::max(TreeRowHeight, option.fontMetrics.height() + 6)};
}

void CandidatureDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
  painter->save();
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  if (selected) {
    painter->fillRect(option.rect, theme_.Color(QStringLiteral("psoft")));
    painter->fillRect(QRect(option.rect.topLeft(), QSize(3, option.rect.height())),
                      theme_.Color(QStringLiteral("primary")));
  } else if (option.state.testFlag(QStyle::State_MouseOver)) {
    painter->fillRect(option.rect, theme_.Color(QStringLiteral("window")));
  }
  if (flash_ > 0 && index.data(CandidatureTreeModel::KeyRole).toString() == flashKey_) {
    QColor colour = theme_.Color(QStringLiteral("primary"));
    colour.setAlpha(flash_);
    painter->fillRect(option.rect, colour);
  }
  if (index.parent().isValid())
    PaintLeaf(*painter, option.rect, selected, index.data().toString());
  else
    PaintGroup(*painter, option.rect, option.state.testFlag(QStyle::State_Open), index);
  painter->restore();
}

void CandidatureDelegate::PaintGroup(QPainter& painter, const QRect& row, bool open,
                                     const QModelIndex& index) const {
  constexpr int Chevron = 14;
  painter.drawPixmap(6, row.center().y() - Chevron / 2 + 1,
                     theme_.Pixmap(open ? QStringLiteral("chev-d") : QStringLiteral("chev-r"),
                                   QStringLiteral("ok"), Chevron));
  const QString count = QString::number(index.data(CandidatureTreeModel::ChildCountRole).toInt());
  painter.setFont(Sized(painter.font(), 11, QFont::DemiBold));
  const int chipWidth = painter.fontMetrics().horizontalAdvance(count) + 14;
  const QRect chip(row.right() - RightRoom - chipWidth, row.center().y() - 8, chipWidth, 17);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme_.Color(QStringLiteral("sunken")));
  painter.drawRoundedRect(chip, 8.5, 8.5);
  painter.setPen(theme_.Color(QStringLiteral("text2")));
  painter.drawText(chip, Qt::AlignCenter, count);

  painter.setFont(Sized(painter.font(), 12, QFont::Bold));
  painter.setPen(theme_.Color(QStringLiteral("ok")));
  DrawElided(painter, row.left() + TreeChevronWidth + 2, row, chip.left() - 6, index.data().toString());
}

// The parts are taken from the one text of the leaf: the date before the first blank, the company
// behind the last comma.
void CandidatureDelegate::PaintLeaf(QPainter& painter, const QRect& row, bool selected,
                                    const QString& text) const {
  const qsizetype blank = text.indexOf(QLatin1Char(' '));
  const qsizetype comma = text.lastIndexOf(QLatin1String(", "));
  const QString title = comma > blank ? text.mid(blank + 1, comma - blank) : text.mid(blank + 1);
  const QString company = comma > blank ? text.mid(comma + 1) : QString();
  const QColor strong = theme_.Color(selected ? QStringLiteral("onpsoft") : QStringLiteral("text"));
  const QColor muted = theme_.Color(selected ? QStringLiteral("onpsoft") : QStringLiteral("text2"));
  const int right = row.right() - RightRoom;
  const int left = row.left() + LeafIndent;

  const int dateWidth = TextPixels(DateWidth);
  const QFont plain = Sized(painter.font(), 13, QFont::Normal);
  painter.setFont(plain);
  painter.setPen(muted);
  DrawElided(painter, left, row, left + dateWidth, text.left(blank));
  painter.setPen(strong);
  if (selected) painter.setFont(Sized(plain, 13, QFont::DemiBold));
  const int behind = DrawElided(painter, left + dateWidth, row, right, title);
  painter.setFont(plain);
  painter.setPen(muted);
  if (behind < right - 10) DrawElided(painter, behind, row, right, company);
}

}  // namespace talvor
