// The tree of the candidatures on screen.
#pragma once

#include <QTreeView>
#include <functional>

#include "desktop/candidatures/candidature_delegate.h"
#include "desktop/candidatures/candidature_tree_model.h"

namespace talvor {

class CandidatureTreeView : public QTreeView {
 public:
  CandidatureTreeView(const CandidatureTree& tree, const Theme& theme, QWidget* parent);

  std::function<void(bool right)> OnPress;   // a mouse press, before its click
  std::function<void(TextView key)> OnNode;  // a click on a node, or Enter
  std::function<void()> OnDelete;            // Del

  // Shows the tree as it has been built: all open, nothing selected, at the same scroll position.
  void Rebuild();
  // The node of a row just captured flashes for a second, then fades in five steps.
  void Flash(TextView key);
  // Where a popup of the last clicked node belongs.
  [[nodiscard]] QPoint PopupPlace() const { return popupPlace_; }
  [[nodiscard]] const CandidatureTreeModel& Model() const { return model_; }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;

 private:
  void Click(const QModelIndex& index);
  void FlashStep(const QString& key, int step);
  void PaintEmpty();

  CandidatureTreeModel model_;
  CandidatureDelegate delegate_;
  const Theme& theme_;
  QPersistentModelIndex pressed_;
  QPoint popupPlace_;
};

}  // namespace talvor
