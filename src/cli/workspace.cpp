#include "cli/workspace.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "app/start_up.h"

namespace talvor::cli {
namespace {

namespace fs = std::filesystem;

// A folder that the user names is the data folder, and no other one stands in for it.
void MoveTo(const std::string& folder) {
  std::error_code error;
  const bool hasBase = fs::exists(fs::path{folder} / "Talvor.mdb", error);
  if (hasBase) fs::current_path(folder, error);
  if (!hasBase || error)
    throw CommandError("La base n'est pas accessible dans " + Quoted(folder) +
                       " (voir «\u00A0talvorctl preparer\u00A0»)");
}

}  // namespace

Workspace::Workspace(const std::string& folder, Text address, Console& console)
    : dialogs(console.err), browser(std::move(address)) {
  if (folder.empty())
    PreparerDossier(environment);
  else
    MoveTo(folder);
  if (ChargerPrincipale(principale, environment, clock, dialogs) == StartOutcome::NoDatabase)
    throw CommandError("il n’y a pas de dossier de données (voir «\u00A0talvorctl preparer\u00A0»)");
}

}  // namespace talvor::cli
