#include "desktop/browser/site_list.h"

#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr int AddressRole = Qt::UserRole;

// A row: the name, then the address in a softer tone.
class SiteDelegate : public QStyledItemDelegate {
 public:
  SiteDelegate(const Theme& theme, QObject* parent) : QStyledItemDelegate(parent), theme_(theme) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr int Margin = 8;
    QStyleOptionViewItem ground(option);
    ground.text.clear();
    ground.widget->style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter, ground.widget);
    painter->save();
    QFont strong = option.font;
    strong.setWeight(QFont::DemiBold);
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    painter->setFont(strong);
    painter->setPen(theme_.Color(chosen ? QStringLiteral("onpsoft") : QStringLiteral("text")));
    QRect room = option.rect.adjusted(Margin, 0, -Margin, 0);
    const QString name =
        painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, room.width());
    painter->drawText(room, Qt::AlignVCenter | Qt::TextSingleLine, name);
    room.setLeft(room.left() + painter->fontMetrics().horizontalAdvance(name) + Margin);
    painter->setFont(option.font);
    painter->setPen(theme_.Color(chosen ? QStringLiteral("onpsoft") : QStringLiteral("text2")));
    painter->drawText(room, Qt::AlignVCenter | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(index.data(AddressRole).toString(), Qt::ElideRight,
                                                        std::max(0, room.width())));
    painter->restore();
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    constexpr int LeastHeight = 26;
    return {1, std::max(LeastHeight, option.fontMetrics.height() + 8)};
  }

 private:
  const Theme& theme_;
};

}  // namespace

SiteList::SiteList(const Theme& theme, QWidget* parent) : QFrame(parent, Qt::Popup) {
  setAttribute(Qt::WA_NoMouseReplay);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  rows_ = new QListWidget(this);
  rows_->setObjectName(QStringLiteral("List1"));
  rows_->setAccessibleName(tr("Sites d’emploi"));
  rows_->setProperty("popup", true);
  rows_->setItemDelegate(new SiteDelegate(theme, rows_));
  rows_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  rows_->setUniformItemSizes(true);
  column->addWidget(rows_);
  const auto choose = [this](QListWidgetItem* item) {
    const auto row = static_cast<std::size_t>(rows_->row(item));
    hide();
    if (OnSite) OnSite(row);
  };
  connect(rows_, &QListWidget::itemClicked, this, choose);
  // Enter; the click of a mouse comes as the signal above.
  connect(rows_, &QListWidget::itemActivated, this, [this, choose](QListWidgetItem* item) {
    if (isVisible()) choose(item);
  });
}

void SiteList::Fill(const SiteDirectory& directory) {
  rows_->clear();
  for (const Text& row : directory.Rows) {
    const QString address = ToQt(SiteDirectory::AddressOf(row));
    auto* item = new QListWidgetItem(ToQt(SiteDirectory::NameOf(row)), rows_);
    item->setData(AddressRole, address);
    item->setToolTip(ToolTipText(SiteDirectory::AddressOf(row)));
  }
}

void SiteList::Open(QPoint topRight, int room) {
  constexpr int Width = 252;
  constexpr int Rows = 12;
  constexpr int Frame = 12;
  const int high = rows_->sizeHintForRow(0) * std::clamp(rows_->count(), 1, Rows) + Frame;
  const int wide = std::min(Width, room);
  setGeometry(topRight.x() - wide, topRight.y(), wide, high);
  rows_->setCurrentRow(0);
  show();
  rows_->setFocus();
}

void SiteList::hideEvent(QHideEvent* event) {
  QFrame::hideEvent(event);
  if (OnLeave) OnLeave();
}

}  // namespace talvor
