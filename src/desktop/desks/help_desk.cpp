#include "desktop/desks/help_desk.h"

#include <QPointer>

#include "desktop/shell/about_box.h"
#include "desktop/shell/guide_panel.h"
#include "desktop/shell/main_window.h"
#include "desktop/shell/user_guide.h"

namespace talvor {

HelpDesk::HelpDesk(const DeskSurroundings& around)
    : around_(around), guide_(around.principale, around.shell) {
  QtShell& shell = around_.shell;
  shell.Over(GuideForm, [this](QWidget* parent) { return MakeHint(parent); }).loaded = [this] {
    guide_.Charger();
  };
  shell.Over(UserGuideForm, [this](QWidget* parent) { return MakeUserGuide(parent); });
  shell.Over(AboutForm, [this](QWidget* parent) { return MakeAbout(parent); });
  around_.main.OnUserGuide = [&shell] { shell.Show(UserGuideForm); };
  around_.main.OnHelp = [&principale = around_.principale] {
    if (!principale.InfoGuide.empty()) principale.AfficherGuide(Text{principale.InfoGuide});
  };
}

QWidget* HelpDesk::MakeHint(QWidget* parent) {
  auto* panel = new GuidePanel(around_.theme, parent);
  guide_.OnChange = [this, shown = QPointer<GuidePanel>(panel)] {
    if (shown) shown->Show(guide_);
  };
  return panel;
}

QWidget* HelpDesk::MakeUserGuide(QWidget* parent) {
  auto* guide = new UserGuideWindow(around_.theme, parent);
  guide->setAttribute(Qt::WA_DeleteOnClose);
  return guide;
}

QWidget* HelpDesk::MakeAbout(QWidget* parent) {
  auto* about = new AboutBox(around_.theme, parent);
  about->setAttribute(Qt::WA_DeleteOnClose);
  about->OnGuide = [&shell = around_.shell] { shell.Show(UserGuideForm); };
  return about;
}

}  // namespace talvor
