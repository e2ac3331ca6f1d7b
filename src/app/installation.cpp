#include "app/installation.h"

#include <algorithm>
#include <system_error>

#include "tracking/store.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

void CopyMissing(const fs::path& from, const fs::path& to) {
  if (!fs::exists(from)) return;
  fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::skip_existing);
}

}  // namespace

void InstallerDossier(const fs::path& folder, const fs::path& delivered) {
  for (const char* name : {"CV", "Lettres", "Cand", "Modeles", "Visualisation", "Sauvegardes"})
    fs::create_directories(folder / name);
  for (const char* name : {"Modeles", "propositions.txt", "Listesites.txt", "listesites.htm", "DocWord.doc"})
    CopyMissing(delivered / name, folder / name);
  Database::Create(folder / "Talvor.mdb");
}

bool DatabaseIsLost(const fs::path& folder) {
  std::error_code missing;
  if (fs::exists(folder / "Talvor.mdb", missing)) return false;
  return std::any_of(fs::directory_iterator{folder / "Sauvegardes", missing}, {},
                     [](const auto& entry) { return entry.path().extension() == ".mdb"; });
}

fs::path DeliveredFiles() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  const fs::path installed = program.parent_path().parent_path() / "share" / "talvor" / "data";
  return !error && fs::exists(installed, error) ? installed : fs::path{TALVOR_DATA_FOLDER};
}

}  // namespace talvor
