// The rows of the identity: label and field, two columns of them where there is room, else one.
#pragma once

#include <QWidget>
#include <vector>

class QGridLayout;

namespace talvor {

class CvIdentityForm : public QWidget {
 public:
  explicit CvIdentityForm(QWidget* parent);
  // In reading order: left, right, left and so on. A widget with several fields counts as one.
  void Add(QWidget* label, QWidget* field);

  // Of the single column, whatever the columns are now.
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  struct Row {
    QWidget* label;
    QWidget* field;
  };
  [[nodiscard]] int ColumnWidth(std::size_t first, std::size_t step) const;
  void Arrange();

  QGridLayout* grid_;
  std::vector<Row> rows_;
  int columns_ = 0;
};

}  // namespace talvor
