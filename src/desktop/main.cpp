// talvor, the desktop program.

#include <QMessageBox>
#include <QTextStream>
#include <cstdlib>
#include <iostream>

#include "app/host.h"
#include "app/installation.h"
#include "base/failure_cause.h"
#include "desktop/application.h"
#include "desktop/desktop.h"
#include "desktop/platform/qt_dialogs.h"
#include "desktop/widgets/text_edge.h"
#include "workspace/workspace_paths.h"

namespace {

using namespace talvor;

// The end of a program that cannot go on: the report, then nothing more, not even a clean-up.
[[noreturn]] void EndWith(const std::string& report) {
  std::cerr << "talvor\u00A0: " << report << std::endl;
  QMessageBox::critical(nullptr, QStringLiteral("Talvor"),
                        QStringLiteral("Talvor doit s’arrêter.\n\n%1").arg(QString::fromStdString(report)));
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

int main(int argc, char** argv) {
  Application application(argc, argv);
  Theme theme;
  theme.FollowDesktop();
  const SystemEnvironment environment;
  const SystemClock clock;
  QtDialogs dialogs;
  try {
    InstallerDossier(workspace_paths::UsualDataFolder(environment), DeliveredFiles());
    Desktop desktop(theme, environment, clock, dialogs);
    dialogs.SetFrame(&desktop.Main());
    application.OnFailure = [&desktop](const std::string& report) {
      desktop.Stop();
      EndWith(report);
    };
    if (!desktop.Start()) return EXIT_FAILURE;
    return Application::exec();
  } catch (const std::exception& failure) {
    EndWith(ToUtf8(ReportOf(failure)));
  }
}
