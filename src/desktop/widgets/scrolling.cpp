#include "desktop/widgets/scrolling.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/widgets/theme.h"

namespace talvor {

void TellLayouts(QWidget& widget) {
  QMetaObject::invokeMethod(
      &widget,
      [&widget] {
        for (QWidget* around = &widget; !around->isWindow(); around = around->parentWidget())
          around->updateGeometry();
      },
      Qt::QueuedConnection);
}

FoldingRow::FoldingRow(QWidget* parent)
    : QWidget(parent), row_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
  row_->setContentsMargins(0, 0, 0, 0);
}

bool FoldingRow::Folded() const { return row_->direction() != QBoxLayout::LeftToRight; }

int FoldingRow::WholeWidth() const {
  int parts = 0;
  int width = 0;
  for (int i = 0; i < row_->count(); ++i) {
    const QLayoutItem* part = row_->itemAt(i);
    if (part->isEmpty()) continue;
    ++parts;
    width += part->minimumSize().width();
  }
  const QMargins edges = row_->contentsMargins();
  return width + std::max(0, parts - 1) * row_->spacing() + edges.left() + edges.right();
}

QSize FoldingRow::minimumSizeHint() const {
  int widest = 0;
  for (int i = 0; i < row_->count(); ++i)
    if (!row_->itemAt(i)->isEmpty()) widest = std::max(widest, row_->itemAt(i)->minimumSize().width());
  const QMargins edges = row_->contentsMargins();
  return {widest + edges.left() + edges.right(), std::max(leastHeight_, row_->minimumSize().height())};
}

QSize FoldingRow::sizeHint() const {
  return {std::max(WholeWidth(), row_->sizeHint().width()),
          std::max(leastHeight_, row_->sizeHint().height())};
}

void FoldingRow::Fold() {
  if (!isVisible()) return;  // its width is not known
  const bool folded = width() < WholeWidth();
  if (folded == Folded()) return;
  row_->setDirection(folded ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  TellLayouts(*this);
}

void FoldingRow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Fold();
}

bool FoldingRow::event(QEvent* event) {
  const bool done = QWidget::event(event);
  // Its parts take their looks, and with them their sizes, when they are shown.
  if (event->type() == QEvent::Show) {
    row_->invalidate();
    TellLayouts(*this);
  }
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) Fold();
  return done;
}

PaneScroll::PaneScroll(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setFocusPolicy(Qt::NoFocus);
}

QSize PaneScroll::minimumSizeHint() const {
  constexpr int LeastHeight = 80;
  if (widget() == nullptr) return QScrollArea::minimumSizeHint();
  return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(),
          TextPixels(LeastHeight)};
}

bool PaneScroll::eventFilter(QObject* watched, QEvent* event) {
  const bool done = QScrollArea::eventFilter(watched, event);
  if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return done;
}

PageStack::PageStack(QWidget* parent) : QStackedWidget(parent) {
  connect(this, &QStackedWidget::currentChanged, this, [this] { updateGeometry(); });
}

QSize PageStack::minimumSizeHint() const {
  const QWidget* page = currentWidget();
  return page == nullptr ? QSize() : page->minimumSizeHint().expandedTo(page->minimumSize());
}

int PageStack::heightForWidth(int width) const {
  const QWidget* page = currentWidget();
  return page == nullptr ? -1 : page->heightForWidth(width);
}

QSize RoomOver(const QWidget* frame) {
  constexpr QSize Around{24, 24};
  constexpr QSize Least{480, 320};
  const QSize room = frame != nullptr ? frame->window()->size()
                                      : QGuiApplication::primaryScreen()->availableGeometry().size();
  return (room - Around).expandedTo(Least);
}

ScrollingDialog::ScrollingDialog(QWidget* parent)
    : QDialog(parent),
      column_(new QVBoxLayout(this)),
      scroll_(new QScrollArea(this)),
      body_(new QWidget(scroll_)) {
  column_->setContentsMargins(0, 0, 0, 0);
  column_->setSpacing(0);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidget(body_);
  column_->addWidget(scroll_, 1);
}

void ScrollingDialog::AddFoot(QWidget* foot) { column_->addWidget(foot); }

void ScrollingDialog::FitContent() {
  ensurePolished();
  for (QWidget* part : findChildren<QWidget*>()) part->ensurePolished();
  int feetWidth = 0;
  int feetHeight = 0;
  for (int i = 1; i < column_->count(); ++i) {
    const QSize foot = column_->itemAt(i)->minimumSize();
    feetWidth = std::max(feetWidth, foot.width());
    feetHeight += foot.height();
  }
  const QSize least = body_->minimumSizeHint();
  const QSize room = RoomOver(parentWidget());
  int width = wanted_.width() > 0 ? wanted_.width() : body_->sizeHint().width();
  width = std::max({width, least.width(), feetWidth});
  int height = wanted_.height();
  if (height <= 0)
    height =
        (body_->hasHeightForWidth() ? body_->heightForWidth(width) : body_->sizeHint().height()) + feetHeight;
  height = std::max(height, least.height() + feetHeight);
  if (height > room.height()) width += scroll_->verticalScrollBar()->sizeHint().width();
  resize(QSize(width, height).boundedTo(room));
}

// Before its parts are laid out at another size.
void ScrollingDialog::setVisible(bool visible) {
  if (visible && !std::exchange(fitted_, true)) FitContent();
  QDialog::setVisible(visible);
}

}  // namespace talvor
