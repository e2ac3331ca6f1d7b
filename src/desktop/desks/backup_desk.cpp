#include "desktop/desks/backup_desk.h"

#include <QPointer>

#include "desktop/shell/backup_window.h"

namespace talvor {

BackupDesk::BackupDesk(const DeskSurroundings& around)
    : around_(around),
      form_({around.principale, around.shell, around.dialogs, around.pickers, around.clock}) {
  form_.fermerDocuments = [&ways = around_.ways] { ways.closeDocuments(); };
  around_.shell.Over(LoadSaveForm, [this](QWidget* parent) { return MakeWindow(parent); });
}

QWidget* BackupDesk::MakeWindow(QWidget* parent) {
  auto* window = new BackupWindow(form_, around_.theme, parent);
  form_.OnProgress = [shown = QPointer<BackupWindow>(window)] {
    if (shown) shown->Refresh();
  };
  window->OnActed = [&ways = around_.ways] {
    ways.readCandidatures();
    ways.refresh();
  };
  return window;
}

void BackupDesk::Close() {
  form_.Annuler();
  around_.shell.Unload(LoadSaveForm);
}

}  // namespace talvor
