#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "app/form_load_save.h"
#include "app/host.h"
#include "cli/commands.h"

namespace talvor::cli {
namespace {

namespace fs = std::filesystem;

// A terminal has no dialogs: the folders stand on the command line.
class NoPickers : public Pickers {
 public:
  std::optional<fs::path> OpenFile(const FileQuestion&) override { return std::nullopt; }
  std::optional<fs::path> SaveFile(const FileQuestion&) override { return std::nullopt; }
  std::optional<Colour> PickColour() override { return std::nullopt; }
};

// The form over a data folder that need not be sound: a restore may be what it waits for.
struct BackupForm {
  BackupForm(const std::string& workspace, Console& console) : dialogs(console.err) {
    const fs::path folder =
        workspace.empty() ? workspace_paths::UsualDataFolder(SystemEnvironment{}) : fs::path{workspace};
    std::error_code error;
    fs::current_path(folder, error);
    if (error)
      throw CommandError("le dossier de données " + Quoted(folder.string()) +
                         " n’est pas accessible (voir «\u00A0talvorctl preparer\u00A0»)");
  }

  SystemClock clock;
  ConsoleDialogs dialogs;
  ConsoleShell shell;
  NoPickers pickers;
  Principale principale{shell};
  FormLoadSave form{{principale, shell, dialogs, pickers, clock}};
};

}  // namespace

ExitCode Sauvegarder(const std::string& workspace, const std::string& folder, Console& console) {
  // Before the process moves: the folder is relative to where the user stands.
  const fs::path target = fs::absolute(folder).lexically_normal();
  BackupForm backup(workspace, console);
  std::error_code missing;
  if (fs::exists(target / "Talvor.mdb", missing))
    throw CommandError(Quoted(target.string()) +
                       " est lui-même un dossier de données\u00A0: choisissez celui qui doit le contenir");
  if (!backup.form.SauverDans(target / "Talvor.mdb")) return Refused;
  console.out << backup.form.progress.files
              << (backup.form.progress.files < 2 ? " fichier copié dans " : " fichiers copiés dans ")
              << LandingOf(fs::current_path(), target).string() << '\n';
  return Done;
}

ExitCode Restaurer(const std::string& workspace, const std::string& folder, Console& console) {
  const fs::path given = fs::absolute(folder).lexically_normal();
  BackupForm backup(workspace, console);
  const fs::path data = fs::current_path();
  // The folder of the copy itself, or the one that it was made in.
  std::error_code missing;
  const fs::path inside = given / data.filename();
  const bool itself =
      fs::exists(given / "Talvor.mdb", missing) || !fs::exists(inside / "Talvor.mdb", missing);
  if (!backup.form.Restaurer(itself ? given : inside, data)) return Refused;
  console.out << backup.form.progress.files
              << (backup.form.progress.files < 2 ? " fichier restauré dans " : " fichiers restaurés dans ")
              << data.string() << '\n';
  return Done;
}

}  // namespace talvor::cli
