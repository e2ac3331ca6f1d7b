// talvor, the desktop program.

#include <QLockFile>
#include <QMessageBox>
#include <QStandardPaths>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "app/host.h"
#include "app/installation.h"
#include "base/failure_cause.h"
#include "desktop/application.h"
#include "desktop/desktop.h"
#include "desktop/platform/qt_dialogs.h"
#include "desktop/shell/main_window.h"
#include "desktop/widgets/text_edge.h"
#include "workspace/workspace_paths.h"

namespace {

using namespace talvor;

constexpr TextView AlreadyOpen = u"Talvor est déjà ouvert.";
constexpr TextView DatabaseLost =
    u"La base des candidatures a disparu du dossier de données\u00A0: une base vide la remplace. Pour "
    u"reprendre la dernière copie, quittez Talvor, puis donnez le nom «\u00A0Talvor.mdb\u00A0» au plus "
    u"récent des fichiers «\u00A0Talvor-….mdb\u00A0» du dossier «\u00A0Sauvegardes\u00A0» et mettez-le à "
    u"la place de la base vide.";

// The end of a program that cannot go on: the report, then nothing more, not even a clean-up.
[[noreturn]] void EndWith(const std::string& report) {
  std::cerr << "talvor\u00A0: " << report << std::endl;
  QMessageBox box(QMessageBox::Critical, QStringLiteral("Talvor"),
                  QStringLiteral("Talvor doit s’arrêter.\n\n%1").arg(QString::fromStdString(report)));
  box.setTextFormat(Qt::PlainText);
  box.exec();
  std::_Exit(EXIT_FAILURE);
}

// Two programs over one data folder would write over each other's documents. The lock of a program that
// was killed counts no more.
QString LockOf(const std::filesystem::path& folder) {
  return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
         QStringLiteral("/talvor-%1.lock").arg(qHash(QByteArray::fromStdString(folder.string())), 0, 16);
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
    const std::filesystem::path folder = workspace_paths::UsualDataFolder(environment);
    QLockFile lock(LockOf(folder));
    lock.setStaleLockTime(0);
    if (!lock.tryLock() && lock.error() == QLockFile::LockFailedError) {
      std::cerr << "talvor\u00A0: " << ToUtf8(AlreadyOpen) << std::endl;
      dialogs.Tell(AlreadyOpen);
      return EXIT_FAILURE;
    }
    const bool lost = DatabaseIsLost(folder);
    InstallerDossier(folder, DeliveredFiles());
    if (lost) dialogs.Tell(DatabaseLost);
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
