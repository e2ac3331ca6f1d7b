// Paints the rows of the tree: groups in bold with their count, leaves as date, title and company.
#pragma once

#include <QStyledItemDelegate>

#include "desktop/widgets/theme.h"

namespace talvor {

inline constexpr int TreeRowHeight = 23;
inline constexpr int TreeChevronWidth = 22;  // the part of a group's row that opens and closes it

class CandidatureDelegate : public QStyledItemDelegate {
 public:
  CandidatureDelegate(const Theme& theme, QObject* parent);

  // The node that flashes after a capture: a key and the strength of its colour, 0 to 255.
  void SetFlash(const QString& key, int strength);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  void PaintGroup(QPainter& painter, const QRect& row, bool open, const QModelIndex& index) const;
  void PaintLeaf(QPainter& painter, const QRect& row, bool selected, const QString& text) const;

  const Theme& theme_;
  QString flashKey_;
  int flash_ = 0;
};

}  // namespace talvor
