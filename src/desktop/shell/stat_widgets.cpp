#include "desktop/shell/stat_widgets.h"

#include <QPainter>
#include <algorithm>

#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

constexpr int CellWidth = 30;
constexpr int CellHeight = 29;
constexpr int TitleHeight = 24;
constexpr int DaysOfAWeek = 7;
constexpr int Weeks = 6;
const QString WeekdayLetters = QStringLiteral("LMMJVSD");

// The colours of a marked day are the same in both palettes, with black text.
const QColor TodayColor(0xFF, 0xC0, 0x80);
const QColor InterviewColor(0xBF, 0xE3, 0xE7);

// What a screen reader says of a month: its marked days.
QString Description(MonthCalendar::Cells cells) {
  QStringList marked;
  for (const auto& cell : cells) {
    if (cell.today) marked.append(MonthCalendar::tr("aujourd’hui le %1").arg(ToQt(cell.text)));
    if (cell.interview) marked.append(MonthCalendar::tr("entretien le %1").arg(ToQt(cell.text)));
  }
  return marked.join(QStringLiteral(", "));
}

}  // namespace

StatBar::StatBar(const Theme& theme, int width, QWidget* parent)
    : QWidget(parent), theme_(theme), width_(width) {
  constexpr int Least = 90;
  setMinimumWidth(Least);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize StatBar::sizeHint() const { return {266, TextPixels(18)}; }

void StatBar::paintEvent(QPaintEvent*) {
  constexpr int LeastWidth = 2;
  constexpr qreal Radius = 3;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme_.Color(QStringLiteral("sunken")));
  painter.drawRoundedRect(rect(), Radius, Radius);
  QRect bar = rect();
  bar.setWidth(std::max(LeastWidth, width() * width_ / FormStat::WidestGraph));
  painter.setBrush(theme_.Color(QStringLiteral("primary")));
  painter.drawRoundedRect(bar, Radius, Radius);
}

MonthCalendar::MonthCalendar(const Theme& theme, const QString& title, Cells cells, QWidget* parent)
    : QWidget(parent), theme_(theme), title_(title), cells_(cells) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setAccessibleName(title_.trimmed());
  setAccessibleDescription(Description(cells_));
}

QSize MonthCalendar::sizeHint() const {
  return {DaysOfAWeek * TextPixels(CellWidth), 2 * TextPixels(TitleHeight) + Weeks * TextPixels(CellHeight)};
}

void MonthCalendar::paintEvent(QPaintEvent*) {
  const int titleHeight = TextPixels(TitleHeight);
  const QSize cell(TextPixels(CellWidth), TextPixels(CellHeight));
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(theme_.Color(QStringLiteral("text")));
  painter.drawText(QRect(0, 0, width(), titleHeight), Qt::AlignCenter, title_.trimmed());

  painter.setFont(font());
  painter.setPen(theme_.Color(QStringLiteral("text2")));
  for (int day = 0; day < DaysOfAWeek; ++day)
    painter.drawText(QRect(day * cell.width(), titleHeight, cell.width(), titleHeight), Qt::AlignCenter,
                     WeekdayLetters.mid(day, 1));
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    const int row = static_cast<int>(i) / DaysOfAWeek;
    const int column = static_cast<int>(i) % DaysOfAWeek;
    PaintDay(painter, cells_[i],
             {QPoint(column * cell.width(), 2 * titleHeight + row * cell.height()), cell});
  }
}

void MonthCalendar::PaintDay(QPainter& painter, const FormStat::DayCell& cell, const QRect& place) const {
  constexpr qreal Radius = 4;
  const QRectF mark = QRectF(place).adjusted(1.5, 1.5, -1.5, -1.5);
  QFont text = font();
  text.setBold(cell.interview);
  if (cell.today || cell.interview) {
    // The shapes tell as much as the colours: a frame around today, a line under an interview.
    painter.setPen(cell.today ? QPen(theme_.Color(QStringLiteral("warn")), 1) : QPen(Qt::NoPen));
    painter.setBrush(cell.today ? TodayColor : InterviewColor);
    painter.drawRoundedRect(mark, Radius, Radius);
  }
  if (cell.interview) {
    painter.setPen(QPen(QColor(0x0B, 0x64, 0x70), 2));
    painter.drawLine(QPointF(mark.center().x() - 4, mark.bottom() - 3),
                     QPointF(mark.center().x() + 4, mark.bottom() - 3));
  }
  painter.setFont(text);
  painter.setPen(cell.today || cell.interview ? QColor(Qt::black) : theme_.Color(QStringLiteral("text2")));
  painter.drawText(place, Qt::AlignCenter, ToQt(cell.text));
}

}  // namespace talvor
