#include "desktop/shell/stat_window.h"

#include <span>

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "desktop/shell/stat_widgets.h"
#include "desktop/widgets/bouton_tlv.h"
#include "desktop/widgets/pane.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

QLabel* MakeTitle(const QString& text, QWidget* parent) {
  auto* title = new QLabel(text, parent);
  title->setProperty("role", QStringLiteral("title"));
  return title;
}

}  // namespace

StatWindow::StatWindow(const FormStat& stat, const Theme& theme, QWidget* parent)
    : ScrollingDialog(parent), stat_(stat), theme_(theme) {
  setObjectName(QStringLiteral("FormStat"));
  setWindowTitle(tr("Statistiques"));
  auto* date = MakeTitle(ToQt(stat.DateJour), this);
  date->setObjectName(QStringLiteral("DateJour"));
  auto* columns = new FoldingRow(Body());
  columns->Row().setSpacing(32);
  columns->Row().addWidget(MakeBars(), 1);
  auto* right = new QVBoxLayout;
  right->setSpacing(16);
  right->addLayout(MakeCalendars());
  right->addWidget(MakeInterviews(), 1);
  columns->Row().addLayout(right);
  auto* close = new BoutonTLV(theme, tr("&Fermer"), this);
  close->setObjectName(QStringLiteral("BoutonTLV1"));
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::close);

  auto* page = new QVBoxLayout(Body());
  page->setContentsMargins(20, 16, 20, 16);
  page->setSpacing(12);
  page->addWidget(date);
  page->addWidget(columns, 1);
  page->addWidget(close, 0, Qt::AlignRight);
  SetWanted({TextPixels(1064), TextPixels(580)});
}

QWidget* StatWindow::MakeBars() {
  auto* bars = new QWidget(this);
  auto* grid = new QGridLayout(bars);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(12);
  grid->setColumnStretch(2, 1);
  for (int i = 0; i < static_cast<int>(stat_.Statuts.size()); ++i) {
    const auto& row = stat_.Statuts[static_cast<std::size_t>(i)];
    auto* count = new QLabel(ToQt(row.Nb), bars);
    count->setObjectName(QStringLiteral("Nb%1").arg(i));
    QFont bold = count->font();
    bold.setBold(true);
    count->setFont(bold);
    count->setAccessibleName(tr("%1\u00A0: %2").arg(ToQt(row.Statut), ToQt(row.Nb)));
    grid->addWidget(new QLabel(ToQt(row.Statut), bars), i, 0);
    grid->addWidget(count, i, 1, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(new StatBar(theme_, row.Graph, bars), i, 2);
    grid->setRowStretch(i, 1);
  }
  return bars;
}

QLayout* StatWindow::MakeCalendars() {
  auto* months = new QHBoxLayout;
  months->setSpacing(20);
  const std::span cells(stat_.Jour);
  months->addWidget(
      new MonthCalendar(theme_, ToQt(stat_.MoisCal1), cells.first<FormStat::CellsOfAMonth>(), this));
  months->addWidget(
      new MonthCalendar(theme_, ToQt(stat_.MoisCal2), cells.last<FormStat::CellsOfAMonth>(), this));
  return months;
}

QWidget* StatWindow::MakeInterviews() {
  auto* panel = MakePlane(QStringLiteral("surface"), this);
  auto* column = new QVBoxLayout(panel);
  column->setContentsMargins(14, 12, 14, 12);
  // With two blanks, as this title is written.
  auto* title = MakeTitle(QStringLiteral("Actions  futures à mener"), panel);
  auto* list = new QLabel(panel);
  list->setObjectName(QStringLiteral("RDV"));
  list->setTextFormat(Qt::PlainText);
  list->setText(ShownText(stat_.RDV).trimmed());
  list->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  list->setWordWrap(true);
  list->setProperty("plane", QStringLiteral("surface"));
  list->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  list->setAccessibleName(title->text());
  auto* scroll = new QScrollArea(panel);
  scroll->setAccessibleName(title->text());
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidget(list);
  column->addWidget(title);
  column->addWidget(scroll, 1);
  return panel;
}

}  // namespace talvor
