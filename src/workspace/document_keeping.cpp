#include "workspace/document_keeping.h"

#include <string>
#include <system_error>

#include "base/line_file.h"
#include "workspace/workspace_paths.h"

namespace talvor {
namespace fs = std::filesystem;
namespace {

bool IsFile(const fs::path& file) {
  std::error_code unreadable;
  return fs::is_regular_file(file, unreadable);
}

// A clock that was set back makes no version recent.
bool IsRecent(const fs::path& version) {
  std::error_code error;
  const auto written = fs::last_write_time(version, error);
  const auto now = fs::file_time_type::clock::now();
  return !error && written <= now && now - written < KeptVersionsApart;
}

// Moves each kept version one place on; the newest place is free afterwards. While the second one is
// recent, the newest gives way instead, so that a run of saves does not push out what stood before it.
std::error_code MakePlaceForNewest(const fs::path& document) {
  std::error_code error;
  if (IsFile(KeptVersion(document, 2)) && IsRecent(KeptVersion(document, 2))) return error;
  for (int age = KeptVersions - 1; age >= 1 && !error; --age)
    if (IsFile(KeptVersion(document, age)))
      fs::rename(KeptVersion(document, age), KeptVersion(document, age + 1), error);
  return error;
}

std::error_code Keep(const fs::path& document) {
  const auto bytes = ReadBytes(document);
  if (!bytes) return bytes.Why().Code();
  const fs::path newest = KeptVersion(document, 1);
  if (ReadBytes(newest) == *bytes) return {};
  std::error_code error;
  fs::create_directories(newest.parent_path(), error);
  if (error) return error;
  // The new copy is whole before an old one moves.
  const fs::path arriving = KeptVersion(document, 0);
  error = WriteBytes(arriving, *bytes).Code();
  if (!error) error = MakePlaceForNewest(document);
  if (!error) fs::rename(arriving, newest, error);
  return error;
}

std::error_code MoveToOtherDisk(const fs::path& from, const fs::path& to) {
  const auto bytes = ReadBytes(from);
  if (!bytes) return bytes.Why().Code();
  std::error_code error = WriteBytes(to, *bytes).Code();
  if (!error) fs::remove(from, error);
  return error;
}

// Moves a whole file to its place, over the one that stands there.
std::error_code PutInPlace(const fs::path& file, const fs::path& place) {
  std::error_code error;
  fs::rename(file, place, error);
  if (error == std::errc::cross_device_link) error = MoveToOtherDisk(file, place);
  if (error) {
    std::error_code ignored;  // the first failure is the one to tell
    fs::remove(file, ignored);
  }
  return error;
}

}  // namespace

fs::path FileIn(const fs::path& folder, TextView name) {
  fs::path file = folder;
  file += "/";
  file += ToUtf8(name);
  return file;
}

std::optional<fs::path> ExistingFile(const fs::path& file) {
  if (IsFile(file)) return file;
  const auto wanted = TextOf(file.filename());
  if (!wanted) return std::nullopt;
  std::error_code error;
  for (fs::directory_iterator entry{file.parent_path(), error}, end; !error && entry != end;
       entry.increment(error)) {
    const auto name = TextOf(entry->path().filename());
    if (name && CompareIgnoringCase(*name, *wanted) == 0 && IsFile(entry->path())) return entry->path();
  }
  return std::nullopt;
}

fs::path KeptVersion(const fs::path& document, int age) {
  fs::path name = document.stem();
  name += ".";
  name += std::to_string(age);
  name += document.extension();
  return workspace_paths::BackupFolder() / document.parent_path().filename() / name;
}

Result<> SaveDocument(const fs::path& document, std::string_view bytes) {
  const auto old = ExistingFile(document);
  std::error_code error = old ? Keep(*old) : std::error_code{};
  if (!error) fs::create_directories(KeptVersion(document, 0).parent_path(), error);
  // Whole before it takes the place of the old one, so that no moment is without the document.
  const fs::path arriving = KeptVersion(document, 0);
  if (!error) error = WriteBytes(arriving, bytes).Code();
  if (!error) error = PutInPlace(arriving, document);
  if (error) return error;
  // The old file under a name of other case.
  if (old && *old != document) fs::remove(*old, error);
  return error;
}

Result<> DeleteDocument(const fs::path& document) {
  if (!IsFile(document)) return Failure(std::errc::no_such_file_or_directory);
  std::error_code error = Keep(document);
  if (!error) fs::remove(document, error);
  return error;
}

Result<> RenameDocument(const fs::path& from, const fs::path& to) {
  std::error_code error;
  if (!IsFile(from)) return Failure(std::errc::no_such_file_or_directory);
  const fs::path taken = ExistingFile(to).value_or(to);
  if (fs::exists(taken, error) && !fs::equivalent(from, taken, error)) return Failure(std::errc::file_exists);
  fs::rename(from, to, error);
  return error == std::errc::cross_device_link ? MoveToOtherDisk(from, to) : error;
}

}  // namespace talvor
