#include "app/start_up.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "base/line_file.h"
#include "tracking/store.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

constexpr TextView NoDatabaseMessage = u"La base n'est pas accessible";
constexpr TextView ManageCandidatures = u"Gérer mes candidatures";

constexpr std::size_t CopiesKept = 30;

bool MoveToDatabase(const Environment& environment) {
  std::error_code error;
  if (fs::exists(workspace_paths::Database(), error)) return true;
  const fs::path usual = workspace_paths::UsualDataFolder(environment);
  if (!fs::exists(usual / "Talvor.mdb", error)) return false;
  fs::current_path(usual, error);
  return !error;
}

void FillCandidatureSlot(Principale& principale, std::int64_t count) {
  MenuSlot& slot = principale.ImageMenu[Principale::CandidatureSlot];
  slot.visible = true;
  if (count < 1) {
    slot.picture = SlotPicture::ImageNew;
    return;
  }
  slot.picture = SlotPicture::ImageCandidature;
  slot.toolTip = ManageCandidatures;
  principale.NbCand = NumberText(count);
}

// Talvor-aaaa-mm-jj.mdb, whose names sort by date.
std::string CopyName(Day day) {
  const std::string date = ToUtf8(DateText(day));  // jj/mm/aaaa
  return "Talvor-" + date.substr(6, 4) + "-" + date.substr(3, 2) + "-" + date.substr(0, 2) + ".mdb";
}

void DropOldCopies(const fs::path& folder) {
  std::vector<fs::path> copies;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator{folder, error}) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with("Talvor-") && name.ends_with(".mdb")) copies.push_back(entry.path());
  }
  std::sort(copies.begin(), copies.end());
  for (std::size_t i = 0; i + CopiesKept < copies.size(); ++i) fs::remove(copies[i], error);
}

// One copy of the database a day, taken before anything changes. What went wrong, empty for nothing.
std::string CopyOfTheDay(Database& database, Day today) {
  const fs::path folder = workspace_paths::BackupFolder();
  std::error_code error;
  fs::create_directories(folder, error);
  if (fs::exists(folder / CopyName(today), error)) return {};
  try {
    database.BackUp(folder / CopyName(today));
  } catch (const StoreError& failure) {
    return failure.what();
  }
  DropOldCopies(folder);
  return {};
}

}  // namespace

void PreparerDossier(const Environment& environment) {
  const fs::path folder = workspace_paths::UsualDataFolder(environment);
  std::error_code passedOver;
  for (const char* name : {"CV", "Lettres", "Cand"}) fs::create_directory(folder / name, passedOver);
  fs::current_path(folder, passedOver);
}

StartOutcome ChargerPrincipale(Principale& principale, const Environment& environment, const Clock& clock,
                               Dialogs& dialogs) {
  principale.InitMenu();
  principale.IndexMenu = -1;
  if (!MoveToDatabase(environment)) {
    dialogs.Tell(NoDatabaseMessage);
    return StartOutcome::NoDatabase;
  }

  Database baseCand = Database::Open(clock);
  FillCandidatureSlot(principale, baseCand.CountRows());
  const std::string failure = CopyOfTheDay(baseCand, clock.Today());
  if (!failure.empty())
    dialogs.Tell(u"La copie de sauvegarde du jour n’a pas pu être faite.\n" +
                 FromUtf8(failure).value_or(u""));
  baseCand.AgeStatuses();
  baseCand.Close();

  // A first CV in another format leaves the identity empty, whatever stands behind it.
  const Text& firstCv = principale.ImageMenu[0].toolTip;
  if (Contains(firstCv, u".dat")) principale.ChargerInfosCV(workspace_paths::CvFolder() / PathOf(firstCv));
  return StartOutcome::Ready;
}

}  // namespace talvor
