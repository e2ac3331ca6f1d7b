#include "desktop/desks/home_desk.h"

#include "desktop/shell/assistant_figure.h"

namespace talvor {

HomeDesk::HomeDesk(const DeskSurroundings& around)
    : around_(around), form_(around.principale, around.shell, around.dialogs), assistant_(around.shell) {
  ConnectCommands();
  around_.ways.refreshHome = [this] {
    if (window_) window_->Refresh();
  };
  QtShell& shell = around_.shell;
  QtShell::Form& panel = shell.Page(HomeForm, [this](QWidget* parent) { return MakeWindow(parent); });
  panel.onLoad = QtShell::OnLoad::Shown;
  panel.unloaded = [&shell] { shell.Unload(AssistantForm); };  // the figure stands in this window
  shell.Over(AssistantForm, [this](QWidget* parent) { return MakeFigure(parent); }).onLoad =
      QtShell::OnLoad::Shown;
}

QWidget* HomeDesk::MakeWindow(QWidget* parent) {
  form_.Charger();
  window_ = new HomeWindow(form_, around_.theme, parent);
  window_->OnActed = around_.ways.refresh;
  return window_;
}

QWidget* HomeDesk::MakeFigure(QWidget* parent) {
  return new AssistantFigure(assistant_, around_.theme, window_ ? window_->Road() : parent);
}

void HomeDesk::ConnectCommands() {
  DeskWays& ways = around_.ways;
  form_.commands = {.rattacherCv = [&ways] { ways.attachCv(); },
                    .nouvelleLettre = [&ways] { ways.newLetter(); },
                    .rechercherOffres = [&ways] { ways.showWebPane(); },
                    .naviguerAccueil = [&ways] { ways.goToStartPage(); },
                    .justificatif = [&ways] { ways.printReport(ReportMode::Justificatif); },
                    .ouvrirCv = [&ways](TextView file) { ways.openCv(file); },
                    .ouvrirLettre = [&ways](TextView file) { ways.openLetter(file); }};
}

}  // namespace talvor
