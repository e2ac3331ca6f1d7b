#include "desktop/candidatures/candidature_tree_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <array>

#include "desktop/widgets/text_edge.h"

namespace talvor {

CandidatureTreeView::CandidatureTreeView(const CandidatureTree& tree, const Theme& theme, QWidget* parent)
    : QTreeView(parent), model_(tree), delegate_(theme, nullptr), theme_(theme) {
  setObjectName(QStringLiteral("Liste"));
  setAccessibleName(tr("Candidatures"));
  setModel(&model_);
  setItemDelegate(&delegate_);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setIndentation(0);
  setRootIsDecorated(false);
  setExpandsOnDoubleClick(false);
  setMouseTracking(true);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setEditTriggers(NoEditTriggers);
  verticalScrollBar()->setSingleStep(TreeRowHeight);
  expandAll();
}

void CandidatureTreeView::Rebuild() {
  setUpdatesEnabled(false);
  const int at = verticalScrollBar()->value();
  model_.Reset();
  expandAll();  // lays the rows out at once
  verticalScrollBar()->setValue(at);
  setUpdatesEnabled(true);
}

void CandidatureTreeView::Click(const QModelIndex& index) {
  if (OnNode) OnNode(FromQt(index.data(CandidatureTreeModel::KeyRole).toString()));
}

void CandidatureTreeView::mousePressEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->pos());
  const bool left = event->button() == Qt::LeftButton;
  if (OnPress) OnPress(event->button() == Qt::RightButton);
  pressed_ = index;
  QTreeView::mousePressEvent(event);
  if (left && index.isValid() && !index.parent().isValid() && event->pos().x() < TreeChevronWidth) {
    setExpanded(index, !isExpanded(index));
    pressed_ = QPersistentModelIndex();
  }
}

void CandidatureTreeView::mouseReleaseEvent(QMouseEvent* event) {
  QTreeView::mouseReleaseEvent(event);
  const QModelIndex index = indexAt(event->pos());
  if (!index.isValid() || index != pressed_ || event->button() == Qt::MiddleButton) return;
  popupPlace_ = event->globalPosition().toPoint();
  Click(index);
}

void CandidatureTreeView::keyPressEvent(QKeyEvent* event) {
  const QModelIndex index = currentIndex();
  const bool menu = event->key() == Qt::Key_Menu ||
                    (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (index.isValid() && (menu || enter)) {
    if (OnPress) OnPress(menu);
    popupPlace_ = viewport()->mapToGlobal(visualRect(index).bottomLeft() + QPoint(TreeChevronWidth, 0));
    return Click(index);
  }
  if (event->key() == Qt::Key_Delete && OnDelete) return OnDelete();
  QTreeView::keyPressEvent(event);
}

// The delegate draws the chevrons.
void CandidatureTreeView::drawBranches(QPainter*, const QRect&, const QModelIndex&) const {}

void CandidatureTreeView::paintEvent(QPaintEvent* event) {
  QTreeView::paintEvent(event);
  if (model_.rowCount() == 0) PaintEmpty();
}

void CandidatureTreeView::PaintEmpty() {
  constexpr int Side = 28;
  QPainter painter(viewport());
  const QPoint middle = viewport()->rect().center();
  painter.drawPixmap(middle.x() - Side / 2, middle.y() - Side,
                     theme_.Pixmap(QStringLiteral("case"), QStringLiteral("text3"), Side));
  painter.setPen(theme_.Color(QStringLiteral("text2")));
  painter.drawText(QRect(0, middle.y() + 6, viewport()->width(), 24), Qt::AlignHCenter,
                   tr("Aucune candidature"));
}

void CandidatureTreeView::Flash(TextView key) {
  if (const QModelIndex index = model_.IndexOf(key); index.isValid()) scrollTo(index);
  FlashStep(ToQt(key), 0);
}

void CandidatureTreeView::FlashStep(const QString& key, int step) {
  constexpr std::array Strengths{170, 120, 90, 60, 40, 20, 0};
  constexpr int HoldMilliseconds = 1000;
  constexpr int StepMilliseconds = 100;
  delegate_.SetFlash(key, Strengths[static_cast<std::size_t>(step)]);
  viewport()->update();
  if (static_cast<std::size_t>(step) + 1 < Strengths.size())
    QTimer::singleShot(step == 0 ? HoldMilliseconds : StepMilliseconds, this,
                       [this, key, step] { FlashStep(key, step + 1); });
}

}  // namespace talvor
