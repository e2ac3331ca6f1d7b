#include "desktop/desks/report_desk.h"

#include "desktop/shell/main_window.h"
#include "desktop/shell/stat_window.h"

namespace talvor {

ReportDesk::ReportDesk(const DeskSurroundings& around)
    : around_(around),
      form_(around.clock),
      preview_(around.theme),
      reports_(around.principale, around.clock, around.environment, around.dialogs, around.shell, preview_) {
  preview_.SetFrame(&around_.main);
  around_.ways.printReport = [this](ReportMode mode) { reports_.ImprimerListe(mode); };
  around_.main.Header().OnPrint = [this] { reports_.ImprimerListe(ReportMode::Liste); };
  around_.shell.Over(StatisticsForm, [this](QWidget* parent) { return MakeWindow(parent); });
}

QWidget* ReportDesk::MakeWindow(QWidget* parent) {
  form_.Charger();
  auto* window = new StatWindow(form_, around_.theme, parent);
  window->setAttribute(Qt::WA_DeleteOnClose);
  return window;
}

}  // namespace talvor
