// The drawn parts of the statistics: a bar on its track, and a month of days.
#pragma once

#include <QWidget>
#include <span>

#include "desktop/widgets/theme.h"
#include "reports/statistics.h"

namespace talvor {

// A bar whose width is told in units of FormStat::WidestGraph.
class StatBar : public QWidget {
 public:
  StatBar(const Theme& theme, int width, QWidget* parent);
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Theme& theme_;
  int width_;
};

// Six weeks of a month, Monday first. Today is framed on its colour, a day with an interview is bold on
// a mark; the cells must outlive the widget.
class MonthCalendar : public QWidget {
 public:
  using Cells = std::span<const FormStat::DayCell, FormStat::CellsOfAMonth>;

  MonthCalendar(const Theme& theme, const QString& title, Cells cells, QWidget* parent);
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintDay(QPainter& painter, const FormStat::DayCell& cell, const QRect& place) const;

  const Theme& theme_;
  QString title_;
  Cells cells_;
};

}  // namespace talvor
