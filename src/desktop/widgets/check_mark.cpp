#include "desktop/widgets/check_mark.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QStyle>

#include "desktop/widgets/text_edge.h"

namespace talvor {

CheckMarkLabel::CheckMarkLabel(const Theme& theme, QWidget& field, QWidget* parent)
    : QWidget(parent), theme_(theme), field_(field), sign_(new QLabel(this)), word_(new QLabel(this)) {
  QFont bold = font();
  bold.setPixelSize(TextPixels(12));
  bold.setWeight(QFont::Bold);
  constexpr int SignAndEdges = 38;
  setFixedSize(QFontMetrics(bold).horizontalAdvance(ToQt(MarkOk.text)) + SignAndEdges, TextPixels(22));
  setAttribute(Qt::WA_StyledBackground);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(9, 0, 9, 0);
  row->setSpacing(5);
  row->addWidget(sign_);
  row->addWidget(word_, 1);
  connect(&theme, &Theme::Changed, this, &CheckMarkLabel::Paint);
}

void CheckMarkLabel::ShowMark(const CheckMark& mark) {
  if (mark == mark_) return;
  mark_ = mark;
  Paint();
  word_->setText(ToQt(mark.text));
  const QString told =
      mark == MarkOk ? tr("Vérification\u00A0: Ok") : tr("Vérification\u00A0: X, à compléter");
  field_.setAccessibleDescription(told);
  setAccessibleName(told);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void CheckMarkLabel::Paint() {
  const bool fit = mark_ == MarkOk;
  const QString ink = fit ? QStringLiteral("ok") : QStringLiteral("bad");
  const QString ground = fit ? QStringLiteral("oksoft") : QStringLiteral("badsoft");
  sign_->setPixmap(theme_.Pixmap(fit ? QStringLiteral("check") : QStringLiteral("cross"), ink, 12));
  setStyleSheet(QStringLiteral("background: %1; border-radius: 11px;").arg(theme_.Color(ground).name()));
  const QString plain =
      QStringLiteral("background: transparent; color: %1; font-weight: 700; font-size: %2px;");
  word_->setStyleSheet(plain.arg(theme_.Color(ink).name()).arg(TextPixels(12)));
  sign_->setStyleSheet(QStringLiteral("background: transparent;"));
}

}  // namespace talvor
