#include "desktop/shell/guide_panel.h"

#include <QAccessible>
#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/widgets/icon_tile.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr int PanelWidth = 340;
constexpr int HelpWidth = 320;
constexpr int Margin = 16;

}  // namespace

GuidePanel::GuidePanel(const Theme& theme, QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), opacity_(new QGraphicsOpacityEffect(this)) {
  setObjectName(QStringLiteral("Guide"));
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFixedWidth(TextPixels(PanelWidth));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(14, 12, 14, 12);
  row->setSpacing(10);
  auto* icon = new QLabel(this);
  icon->setPixmap(theme.Pixmap(QStringLiteral("info"), QStringLiteral("today"), 18));
  row->addWidget(icon, 0, Qt::AlignTop);
  text_->setObjectName(QStringLiteral("Label1"));
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  row->addWidget(text_, 1);
  setGraphicsEffect(opacity_);
  opacity_->setOpacity(0);
}

void GuidePanel::Place(Guide::Place place) {
  const QWidget* frame = parentWidget();
  setFixedHeight(layout()->heightForWidth(width()));
  move(place == Guide::Place::BottomLeft
           ? QPoint(Margin, frame->height() - height() - Margin)
           : QPoint(frame->width() - width() - Margin, IconTile::Height() + 12 + Margin));
}

void GuidePanel::Show(const Guide& guide) {
  if (text_->text() != ToQt(guide.Hint)) {
    text_->setText(ToQt(guide.Hint));
    Place(guide.place);
    show();
    raise();
    setAccessibleName(text_->text());
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
  }
  opacity_->setOpacity(static_cast<qreal>(guide.Opacity) / Guide::MaxOpacity);
}

AidePanel::AidePanel(QWidget* parent) : QFrame(parent), info_(new QLabel(this)) {
  setObjectName(QStringLiteral("CadreAide"));
  setFixedWidth(TextPixels(HelpWidth));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(12, 10, 12, 10);
  auto* title = new QLabel(tr("Aide"), this);
  title->setProperty("role", QStringLiteral("title"));
  column->addWidget(title);
  info_->setObjectName(QStringLiteral("Info"));
  info_->setText(tr("Zones d'informations"));
  info_->setTextFormat(Qt::PlainText);
  info_->setWordWrap(true);
  column->addWidget(info_);
}

}  // namespace talvor
