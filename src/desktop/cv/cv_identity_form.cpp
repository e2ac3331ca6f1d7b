#include "desktop/cv/cv_identity_form.h"

#include <QEvent>
#include <QGridLayout>
#include <algorithm>

#include "desktop/widgets/scrolling.h"

namespace talvor {
namespace {

constexpr int RowGap = 4;
constexpr int LabelGap = 6;
constexpr int ColumnGap = 14;

int LeastWidth(const QWidget& widget) {
  return std::max(widget.minimumWidth(), widget.minimumSizeHint().width());
}

}  // namespace

CvIdentityForm::CvIdentityForm(QWidget* parent) : QWidget(parent), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(LabelGap);
  grid_->setVerticalSpacing(RowGap);
  grid_->setColumnStretch(1, 1);
}

void CvIdentityForm::Add(QWidget* label, QWidget* field) {
  rows_.push_back({label, field});
  columns_ = 0;
}

int CvIdentityForm::ColumnWidth(std::size_t first, std::size_t step) const {
  int label = 0;
  int field = 0;
  for (std::size_t i = first; i < rows_.size(); i += step) {
    label = std::max(label, LeastWidth(*rows_[i].label));
    field = std::max(field, LeastWidth(*rows_[i].field));
  }
  return label + LabelGap + field;
}

QSize CvIdentityForm::minimumSizeHint() const { return {ColumnWidth(0, 1), grid_->minimumSize().height()}; }

// The second column begins with an empty one, which is its distance from the first.
void CvIdentityForm::Arrange() {
  constexpr int SecondColumn = 3;
  const int columns = width() < ColumnWidth(0, 2) + ColumnGap + ColumnWidth(1, 2) ? 1 : 2;
  if (columns == columns_) return;
  columns_ = columns;
  for (const Row& row : rows_)
    for (QWidget* widget : {row.label, row.field}) grid_->removeWidget(widget);
  for (int i = 0; i < static_cast<int>(rows_.size()); ++i) {
    const int column = i % columns * SecondColumn;
    grid_->addWidget(rows_[static_cast<std::size_t>(i)].label, i / columns, column);
    grid_->addWidget(rows_[static_cast<std::size_t>(i)].field, i / columns, column + 1);
  }
  grid_->setColumnMinimumWidth(2, columns == 1 ? 0 : ColumnGap - 2 * LabelGap);
  grid_->setColumnStretch(SecondColumn + 1, columns - 1);
  TellLayouts(*this);
}

void CvIdentityForm::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

bool CvIdentityForm::event(QEvent* event) {
  const bool done = QWidget::event(event);
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) Arrange();
  return done;
}

}  // namespace talvor
