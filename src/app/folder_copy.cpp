#include "app/folder_copy.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <optional>
#include <system_error>
#include <vector>

#include "base/line_file.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

// The rollback file of the database: beside a new database an old one would undo what it holds.
constexpr const char* DatabaseName = "Talvor.mdb";
constexpr const char* JournalName = "Talvor.mdb-journal";

std::error_code LastError() { return {errno, std::generic_category()}; }

Text QuotedName(const fs::path& path) { return Quoted(TextOf(path).value_or(u"?")); }

// A folder with no separator at its end.
fs::path Plain(const fs::path& folder) {
  const fs::path normal = fs::absolute(folder).lexically_normal();
  return normal.has_filename() ? normal : normal.parent_path();
}

bool LiesIn(const fs::path& inner, const fs::path& outer) {
  const auto [end, rest] = std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end());
  return end == outer.end();
}

// One copy under way: what is to be copied, and what has been done, to be undone after a failure.
class Copy {
 public:
  Copy(const fs::path& source, const fs::path& destination, const CopyOptions& options, CopySteps& steps)
      : source_(Plain(source)), options_(options), steps_(steps) {
    std::error_code missing;
    const fs::path real = fs::weakly_canonical(Plain(destination), missing);
    destination_ = missing ? Plain(destination) : real;
    // Beside the destination, so that a file moves there without being copied again.
    stage_ = destination_.parent_path() / ("." + destination_.filename().string() + ".copie");
  }

  void Run() {
    CheckFolders(source_, destination_);
    try {
      Collect(source_, {}, {});
      CheckRoom();
      Fetch();
      if (options_.beforeReplacing) options_.beforeReplacing(Arrived());
      Replace();
    } catch (const std::runtime_error&) {
      ClearStage();
      throw;
    }
    ClearStage();
  }

 private:
  struct Entry {
    fs::path name;  // relative to the source
    std::uintmax_t size = 0;
  };
  struct Placed {
    fs::path file;
    fs::path old;  // where the replaced file stands, empty for a new name
  };

  fs::path Arrived() const { return stage_ / "nouveau"; }
  fs::path Kept() const { return options_.kept.empty() ? stage_ / "ancien" : options_.kept; }

  void ClearStage() const {
    std::error_code left;  // what cannot be cleared now goes with the next copy
    fs::remove_all(stage_, left);
  }

  static void Require(const Result<>& step, const fs::path& file) {
    if (step.Failed()) throw CopyFailure(file, step.Why());
  }

  // Lists what a folder holds. `ancestors` are the folders around it, so that a link to one of them ends
  // the descent.
  void Collect(const fs::path& folder, const fs::path& name, std::vector<fs::path> ancestors) {
    std::error_code error;
    const fs::path real = fs::canonical(folder, error);
    Require(error, folder);
    if (std::find(ancestors.begin(), ancestors.end(), real) != ancestors.end()) return;
    ancestors.push_back(real);
    if (!name.empty()) folders_.push_back(name);
    for (fs::directory_iterator entry{folder, error}, end; !error && entry != end; entry.increment(error))
      Take(*entry, name / entry->path().filename(), ancestors);
    Require(error, folder);
  }

  void Take(const fs::directory_entry& entry, const fs::path& name, const std::vector<fs::path>& ancestors) {
    std::error_code error;
    if (!options_.linksInSource) RefuseLink(entry.path());
    if (entry.is_directory(error)) return Collect(entry.path(), name, ancestors);
    if (!entry.is_regular_file(error)) {
      if (!entry.exists(error)) throw CopyFailure(entry.path(), LinkToNothing());
      throw CopyFailure(u"Le fichier " + QuotedName(entry.path()) + u" n’est pas un fichier ordinaire.");
    }
    const std::uintmax_t size = entry.file_size(error);
    Require(error, entry.path());
    files_.push_back({name, size});
    progress_.byteCount += size;
  }

  static void RefuseLink(const fs::path& file) {
    std::error_code error;
    if (fs::is_symlink(file, error))
      throw CopyFailure(QuotedName(file) + u" est un lien vers un autre endroit\u00A0: il n’est pas suivi.");
  }

  static std::error_code LinkToNothing() {
    return std::make_error_code(std::errc::no_such_file_or_directory);
  }

  void CheckRoom() {
    progress_.fileCount = files_.size();
    std::error_code unknown;
    fs::path disk = destination_;
    while (!fs::exists(disk, unknown) && disk.has_relative_path()) disk = disk.parent_path();
    const fs::space_info space = fs::space(disk, unknown);
    if (unknown || space.available >= progress_.byteCount) return;
    constexpr std::uintmax_t Megabyte = 1'000'000;
    const auto megabytes = [](std::uintmax_t bytes) {
      return NumberText(static_cast<long long>(bytes / Megabyte));
    };
    throw CopyFailure(u"Il n’y a pas assez de place dans " + QuotedName(disk) + u"\u00A0: la copie demande " +
                      megabytes(progress_.byteCount) + u"\u00A0Mo, il en reste " +
                      megabytes(space.available) + u".");
  }

  bool Report() const { return !options_.onProgress || options_.onProgress(progress_); }

  // Brings everything beside the destination.
  void Fetch() {
    ClearStage();
    std::error_code error;
    fs::create_directories(Arrived(), error);
    Require(error, stage_);
    for (const fs::path& folder : folders_) {
      fs::create_directory(Arrived() / folder, error);
      Require(error, destination_ / folder);
    }
    for (const Entry& file : files_) {
      const auto copied =
          steps_.CopyFile(source_ / file.name, Arrived() / file.name, [&](std::uintmax_t bytes) {
            progress_.bytes += bytes;
            return Report();
          });
      if (copied.Code() == std::errc::operation_canceled) Stopped();
      Require(copied, source_ / file.name);
      ++progress_.files;
      if (!Report()) Stopped();
    }
    Require(steps_.Settle(stage_), destination_);
  }

  [[noreturn]] void Stopped() const {
    throw CopyFailure(u"La copie a été interrompue après " +
                      NumberText(static_cast<long long>(progress_.files)) +
                      (progress_.files < 2 ? u" fichier sur " : u" fichiers sur ") +
                      NumberText(static_cast<long long>(progress_.fileCount)) + u".");
  }

  void Replace() {
    try {
      MakeFolder(destination_);
      for (const fs::path& folder : folders_) MakeFolder(destination_ / folder);
      for (const Entry& file : files_) {
        if (file.name == DatabaseName) DropJournal();
        PutInPlace(Arrived() / file.name, destination_ / file.name, Kept() / file.name);
      }
      Require(steps_.Settle(destination_), destination_);
    } catch (const CopyFailure&) {
      Undo();
      throw;
    }
  }

  void MakeFolder(const fs::path& folder) {
    std::error_code error;
    if (!options_.linksInDestination && folder != destination_) RefuseLink(folder);
    if (fs::is_directory(folder, error)) return;
    fs::create_directory(folder, error);
    Require(error, folder);
    madeFolders_.push_back(folder);
  }

  void PutInPlace(const fs::path& arrived, const fs::path& file, const fs::path& kept) {
    std::error_code error;
    const bool replaces = fs::exists(fs::symlink_status(file, error));
    if (replaces) Keep(file, kept);
    Require(steps_.Put(arrived, file), file);
    placed_.push_back({file, replaces ? kept : fs::path{}});
  }

  // A second name for the file where the disk knows such, otherwise a copy: the old one stands until the
  // new one takes its name.
  void Keep(const fs::path& file, const fs::path& kept) {
    std::error_code error;
    if (fs::is_directory(file, error)) return Require(std::make_error_code(std::errc::is_a_directory), file);
    fs::create_directories(kept.parent_path(), error);
    Require(error, kept.parent_path());
    fs::create_hard_link(file, kept, error);
    if (error) fs::copy_file(file, kept, fs::copy_options::overwrite_existing, error);
    Require(error, kept);
  }

  void DropJournal() {
    const fs::path journal = destination_ / JournalName;
    const bool comesAlong =
        std::any_of(files_.begin(), files_.end(), [](const Entry& file) { return file.name == JournalName; });
    std::error_code error;
    if (comesAlong || !fs::exists(journal, error)) return;
    Keep(journal, Kept() / JournalName);
    fs::remove(journal, error);
    Require(error, journal);
    placed_.push_back({journal, Kept() / JournalName});
  }

  void Undo() {
    std::optional<fs::path> stuck;
    std::error_code error;
    for (auto placed = placed_.rbegin(); placed != placed_.rend(); ++placed) {
      error.clear();
      if (placed->old.empty())
        fs::remove(placed->file, error);
      else
        fs::rename(placed->old, placed->file, error);
      if (error) stuck = placed->file;
    }
    std::error_code holdsOthers;
    for (auto folder = madeFolders_.rbegin(); folder != madeFolders_.rend(); ++folder)
      fs::remove(*folder, holdsOthers);
    if (stuck)
      throw CopyFailure(u"La copie a échoué, et l’ancien fichier " + QuotedName(*stuck) +
                        u" n’a pas pu revenir\u00A0; il se trouve dans " + QuotedName(Kept()) + u".");
    if (!options_.kept.empty()) fs::remove_all(options_.kept, holdsOthers);
  }

  fs::path source_;
  fs::path destination_;
  fs::path stage_;
  const CopyOptions& options_;
  CopySteps& steps_;
  std::vector<fs::path> folders_;  // relative, outer ones first
  std::vector<Entry> files_;
  std::vector<fs::path> madeFolders_;
  std::vector<Placed> placed_;
  CopyProgress progress_;
};

}  // namespace

CopyFailure::CopyFailure(const fs::path& file, const Failure& cause)
    : CopyFailure(u"Le fichier " + QuotedName(file) + u" n’a pas pu être copié\u00A0: " + cause.Cause() +
                  u".") {}

Result<> CopySteps::CopyFile(const fs::path& from, const fs::path& to,
                             const std::function<bool(std::uintmax_t)>& onBytes) {
  const int in = ::open(from.c_str(), O_RDONLY | O_CLOEXEC);
  if (in < 0) return LastError();
  const int out = ::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  std::error_code error = out < 0 ? LastError() : std::error_code{};
  std::array<char, 1 << 18> block;
  for (ssize_t read = 1; !error && read > 0;) {
    read = ::read(in, block.data(), block.size());
    if (read < 0) error = LastError();
    for (ssize_t written = 0; !error && written < read;) {
      const ssize_t step = ::write(out, block.data() + written, static_cast<std::size_t>(read - written));
      if (step < 0) error = LastError();
      written += step;
    }
    if (!error && read > 0 && !onBytes(static_cast<std::uintmax_t>(read)))
      error = std::make_error_code(std::errc::operation_canceled);
  }
  ::close(in);
  if (out >= 0 && ::close(out) != 0 && !error) error = LastError();
  std::error_code undated;  // a support that keeps no dates
  if (!error) fs::last_write_time(to, fs::last_write_time(from, undated), undated);
  return error;
}

Result<> CopySteps::Put(const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::rename(from, to, error);
  return error;
}

Result<> CopySteps::Settle(const fs::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return LastError();
  const std::error_code error = ::syncfs(descriptor) == 0 ? std::error_code{} : LastError();
  ::close(descriptor);
  return error;
}

void CheckFolders(const fs::path& source, const fs::path& destination) {
  std::error_code error;
  const fs::path from = fs::canonical(source, error);
  if (!error && !fs::is_directory(from, error)) error = std::make_error_code(std::errc::not_a_directory);
  if (error) throw CopyFailure(source, error);
  const fs::path to = fs::weakly_canonical(Plain(destination), error);
  if (error) throw CopyFailure(destination, error);
  if (to == from)
    throw CopyFailure(u"Le dossier " + QuotedName(from) + u" ne peut pas être copié sur lui-même.");
  if (LiesIn(to, from))
    throw CopyFailure(u"Le dossier " + QuotedName(to) + u" se trouve dans le dossier à copier, " +
                      QuotedName(from) + u"\u00A0: choisissez un autre emplacement.");
}

void CopyContents(const fs::path& source, const fs::path& destination, const CopyOptions& options,
                  CopySteps& steps) {
  Copy(source, destination, options, steps).Run();
}

fs::path LandingOf(const fs::path& source, const fs::path& destination) {
  return destination / Plain(source).filename();
}

void CopierDossier(const fs::path& source, const fs::path& destination, const CopyOptions& options,
                   CopySteps& steps) {
  CopyContents(source, LandingOf(source, destination), options, steps);
}

}  // namespace talvor
