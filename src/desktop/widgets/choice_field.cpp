#include "desktop/widgets/choice_field.h"

#include <QAction>
#include <QKeyEvent>
#include <algorithm>

namespace talvor {

ChoiceField::ChoiceField(const Theme& theme, const QString& image, const QString& list, QWidget* parent)
    : QLineEdit(parent), theme_(theme), listName_(list) {
  image_ = addAction(QIcon(), TrailingPosition);
  image_->setObjectName(image);
  image_->setToolTip(tr("Ouvrir la liste"));
  connect(image_, &QAction::triggered, this, [this] {
    if (OnToggle) OnToggle();
  });
  connect(&theme, &Theme::Changed, this, &ChoiceField::TakeIcons);
  TakeIcons();
}

// The list hangs from the window, not from the field.
ChoiceField::~ChoiceField() { delete list_.data(); }

void ChoiceField::TakeIcons() {
  image_->setIcon(theme_.Icon(QStringLiteral("chev-d"), QStringLiteral("text2")));
}

void ChoiceField::AddRow(const QString& text, const QIcon& icon) { rows_.append({text, icon}); }

void ChoiceField::SetRowIcon(int row, const QIcon& icon) {
  rows_[row].second = icon;
  if (list_) list_->item(row)->setIcon(icon);
}

QListWidget* ChoiceField::List() {
  if (list_) return list_;
  list_ = new QListWidget(window());
  list_->setObjectName(listName_);
  list_->setAccessibleName(accessibleName());
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setProperty("popup", true);
  list_->setIconSize({12, 12});
  for (const auto& [text, icon] : rows_) new QListWidgetItem(icon, text, list_);
  connect(list_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    if (OnChosen) OnChosen(static_cast<std::size_t>(list_->row(item)));
  });
  list_->hide();
  return list_;
}

void ChoiceField::PlaceList() {
  const int wide = std::max(width(), list_->sizeHintForColumn(0) + 24);
  const int high = list_->sizeHintForRow(0) * list_->count() + 10;
  const QPoint below = mapTo(window(), QPoint(0, height() + 1));
  const int room = window()->height() - 4;
  // Above the field where there is no room below it.
  const int top = below.y() + high <= room ? below.y() : std::max(4, below.y() - height() - 2 - high);
  list_->setGeometry(std::min(below.x(), window()->width() - wide - 4), top, wide,
                     std::min(high, room - top));
}

void ChoiceField::ShowList(const ChoiceList& choice) {
  if (choice.visible == ListShown()) return;
  if (!choice.visible) return list_->hide();
  List()->setCurrentRow(choice.selected ? static_cast<int>(*choice.selected) : -1);
  if (!choice.selected) list_->clearSelection();
  PlaceList();
  list_->show();
  list_->raise();
}

void ChoiceField::keyPressEvent(QKeyEvent* event) {
  const bool down = event->key() == Qt::Key_Down;
  if (!ListShown()) {
    if ((down || event->key() == Qt::Key_F4) && OnToggle) return OnToggle();
    return QLineEdit::keyPressEvent(event);
  }
  switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_Up:
      list_->setCurrentRow(std::clamp(list_->currentRow() + (down ? 1 : -1), 0, list_->count() - 1));
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (list_->currentRow() >= 0 && OnChosen) OnChosen(static_cast<std::size_t>(list_->currentRow()));
      // The row that is chosen already leaves the list open; the key closes it.
      if (ListShown() && OnLeave) OnLeave();
      return;
    case Qt::Key_Escape:
    case Qt::Key_F4:
      if (OnLeave) OnLeave();
      return;
    default:
      QLineEdit::keyPressEvent(event);
  }
}

void ChoiceField::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  const bool staysHere =
      event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
  if (!staysHere && OnLeave) OnLeave();
}

}  // namespace talvor
