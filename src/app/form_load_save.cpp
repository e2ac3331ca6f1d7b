#include "app/form_load_save.h"

#include <chrono>
#include <cstdint>
#include <exception>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "base/failure_cause.h"
#include "base/line_file.h"
#include "tracking/store.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

constexpr TextView SaveProblem = u"Problème lors de la sauvegarde. ";
constexpr TextView LoadProblem = u"Problème lors du chargement. ";
constexpr TextView Saved = u"Sauvegarde effectuée";
constexpr TextView Loaded = u"Chargement effectué";
constexpr const char* DatabaseName = "Talvor.mdb";

FileQuestion Question() {
  return {.title = u"Sélectionner l'emplacement de sauvegarde",
          .folder = {},
          .filter = u"Talvor.mdb|Talvor.mdb",
          .name = u"Talvor.mdb"};
}

// What stands in a path before the first `mark`.
fs::path Before(const fs::path& path, TextView mark) {
  const Text text = TextOf(path).value_or(Text{});
  const auto at = text.find(mark);
  if (at == Text::npos)
    throw CopyFailure(u"Le chemin " + Quoted(text) + u" ne contient pas " + Quoted(mark) + u".");
  return at == 0 ? fs::path{"/"} : PathOf(text.substr(0, at));
}

fs::path FolderOfAnswer(const fs::path& answer) { return Before(answer, u"/Talvor.mdb"); }

Text MessageOf(const std::exception& failure) { return FromUtf8(failure.what()).value_or(Text{}); }

// The live database is copied by the engine, which gives a whole copy whatever is being written to it.
class WorkspaceSteps : public CopySteps {
 public:
  WorkspaceSteps(CopySteps& steps, const Clock& clock) : steps_(steps), clock_(clock) {}

  Result<> CopyFile(const fs::path& from, const fs::path& to,
                    const std::function<bool(std::uintmax_t)>& onBytes) override {
    if (from != workspace_paths::Database() || !Readable()) return steps_.CopyFile(from, to, onBytes);
    Database::Open(clock_).BackUp(to);
    std::error_code unknown;
    if (!onBytes(fs::file_size(to, unknown))) return Failure(std::errc::operation_canceled);
    return {};
  }
  Result<> Put(const fs::path& from, const fs::path& to) override { return steps_.Put(from, to); }
  Result<> Settle(const fs::path& folder) override { return steps_.Settle(folder); }

  // Rolls back what a crash has left beside the base, which opening it does.
  void SettleCrash() const { static_cast<void>(Readable()); }

 private:
  // False for a base that the engine refuses: its file is copied as it stands.
  bool Readable() const {
    try {
      return Database::Open(clock_).IsOpen();
    } catch (const StoreError&) {
      return false;
    }
  }

  CopySteps& steps_;
  const Clock& clock_;
};

}  // namespace

const std::array<FormLoadSave::Link, 3> FormLoadSave::Links{{
    {u"Sauver", u"Faire une copie de sauvegarde",
     u"Les données enregistées dans la base seront recopiées sur votre clé de stockage"},
    {u"Charger", u"Restaurer les données à partir d'une copie",
     u"La base de données reprendra les données contenues dans votre clé de stockage"},
    {u"Nouvel", u"Travailler depuis un nouvel emplacement",
     u"La base de données sera désignée par ce nouvel emplacement le temps de la session de travail"},
}};

const Text FormLoadSave::Explanation =
    u"Les données manipulées dans Talvor sont automatiquement enregistrées sur votre poste. Cette fonciton "
    u"est destinée à conserver et utiliser les données sur d'autres postes ou pour une sauvegarde de "
    u"sécurité.";

FormLoadSave::FormLoadSave(Surroundings surroundings, std::unique_ptr<CopySteps> steps)
    : around_(surroundings), steps_(steps ? std::move(steps) : std::make_unique<CopySteps>()) {}

// Runs an action and tells what it throws; false when it has.
template <class Action>
bool FormLoadSave::Try(TextView problem, Action&& action) {
  if (busy) return false;
  busy = true;
  stopped_ = false;
  progress = {};
  Text failure;
  try {
    action();
  } catch (const CopyFailure& thrown) {
    failure = Text{problem} + MessageOf(thrown);
  } catch (const StoreError& thrown) {
    failure = Text{problem} + MessageOf(thrown);
  } catch (const fs::filesystem_error& thrown) {
    failure = Text{problem} + ReportOf(thrown);
  }
  busy = false;
  if (OnProgress) OnProgress();
  if (!failure.empty()) around_.dialogs.Tell(failure);
  return failure.empty();
}

void FormLoadSave::Done(TextView message) {
  around_.dialogs.Tell(message);
  around_.shell.Unload(LoadSaveForm);
}

CopyOptions FormLoadSave::Options() {
  using Ticks = std::chrono::steady_clock;
  static constexpr auto BetweenPictures = std::chrono::milliseconds(40);
  CopyOptions options;
  options.onProgress = [this, last = Ticks::time_point{}](const CopyProgress& now) mutable {
    progress = now;
    if (Ticks::now() - last < BetweenPictures) return !stopped_;
    last = Ticks::now();
    if (OnProgress) OnProgress();
    around_.shell.PumpEvents();
    return !stopped_;
  };
  return options;
}

bool FormLoadSave::Sauver() {
  if (busy) return false;
  const auto answer = around_.pickers.SaveFile(Question());
  return answer && SauverDans(*answer);
}

bool FormLoadSave::SauverDans(const fs::path& answer) {
  const bool done = Try(SaveProblem, [&] {
    const fs::path source = fs::current_path();
    CheckFolders(source, LandingOf(source, answer.parent_path()));
    const bool removed = RemoveOldDatabase(answer);
    WorkspaceSteps steps(*steps_, around_.clock);
    steps.SettleCrash();
    try {
      CopyOptions options = Options();
      options.linksInDestination = false;
      CopierDossier(source, answer.parent_path(), options, steps);
    } catch (const std::runtime_error& failure) {
      if (!removed) throw;
      throw CopyFailure(MessageOf(failure) + u" L’ancienne base " + Quoted(TextOf(answer).value_or(Text{})) +
                        u" avait déjà été supprimée.");
    }
  });
  if (done) Done(Saved);
  return done;
}

// The database of an old copy goes before the new one is there: a copy that fails leaves the place
// without it.
bool FormLoadSave::RemoveOldDatabase(const fs::path& answer) {
  std::error_code error;
  const bool removed = fs::remove(answer, error);
  if (error) throw CopyFailure(answer, error);
  return removed;
}

bool FormLoadSave::Charger() {
  if (busy) return false;
  const auto answer = around_.pickers.OpenFile(Question());
  if (!answer) return false;
  fs::path source;
  fs::path destination;
  if (!Try(LoadProblem, [&] {
        source = FolderOfAnswer(*answer);
        // The first "/Talvor" of the path ends it, even where a folder of that name stands further up.
        destination = LandingOf(source, Before(fs::current_path(), u"/Talvor"));
      }))
    return false;
  return Restaurer(source, destination);
}

bool FormLoadSave::Restaurer(const fs::path& source, const fs::path& destination) {
  bool elsewhere = false;
  const bool done = Try(LoadProblem, [&] {
    elsewhere = fs::weakly_canonical(destination) != fs::current_path();
    CheckFolders(source, destination);
    CheckDatabase(source);
    CopyOptions options = Options();
    options.kept = KeptFolder();
    options.linksInSource = false;
    options.beforeReplacing = [&](const fs::path& arrived) {
      CheckArrived(arrived, source);
      if (fermerDocuments) fermerDocuments();
    };
    CopyContents(source, destination, options, *steps_);
    around_.principale.InitMenu();
  });
  if (!done) return false;
  if (elsewhere)
    around_.dialogs.Tell(u"Les données ont été copiées dans " + Quoted(TextOf(destination).value_or(Text{})) +
                         u", qui n’est pas le dossier de travail.");
  Done(Loaded);
  return true;
}

void FormLoadSave::CheckDatabase(const fs::path& folder) {
  std::error_code missing;
  if (!fs::is_regular_file(folder / DatabaseName, missing))
    throw CopyFailure(folder / DatabaseName, std::make_error_code(std::errc::no_such_file_or_directory));
}

// A refusal names the file that the user has chosen, not the copy of it that was looked at.
void FormLoadSave::CheckArrived(const fs::path& arrived, const fs::path& source) const {
  try {
    Database::OpenFile(arrived / DatabaseName, around_.clock).CheckSound();
  } catch (const StoreError& refusal) {
    const auto text = [](const fs::path& folder) { return TextOf(folder / DatabaseName).value_or(Text{}); };
    throw CopyFailure(ReplaceAll(MessageOf(refusal), text(arrived), text(source)));
  }
}

// Sauvegardes/Restauration 2026-03-01, with a number from the second of a day on.
fs::path FormLoadSave::KeptFolder() const {
  const Text date = DateText(around_.clock.Today());  // jj/mm/aaaa
  const Text name =
      u"Restauration " + date.substr(6, 4) + u"-" + date.substr(3, 2) + u"-" + date.substr(0, 2);
  fs::path folder = workspace_paths::BackupFolder() / PathOf(name);
  std::error_code error;
  for (int number = 2; fs::exists(folder, error); ++number)
    folder = workspace_paths::BackupFolder() / PathOf(name + u" (" + NumberText(number) + u")");
  return folder;
}

bool FormLoadSave::Nouvel() {
  if (busy) return false;
  const auto answer = around_.pickers.OpenFile(Question());
  if (!answer) return false;
  const bool done = Try(LoadProblem, [&] {
    const fs::path folder = FolderOfAnswer(*answer);
    Database::OpenFile(folder / DatabaseName, around_.clock).CheckSound();
    if (fermerDocuments) fermerDocuments();
    std::error_code error;
    fs::current_path(folder, error);
    if (error) throw CopyFailure(folder, error);
    around_.principale.InitMenu();
  });
  if (done) Done(Loaded);
  return done;
}

// During a copy the button stops it, and the form stays for its report.
void FormLoadSave::Close() {
  if (busy) return Annuler();
  around_.shell.Unload(LoadSaveForm);
}

}  // namespace talvor
