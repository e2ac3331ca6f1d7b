// A folder copied into another one, all or nothing: the new files are whole before the first old one
// goes, and a copy that fails leaves what it found.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <stdexcept>

#include "base/result.h"

namespace talvor {

struct CopyProgress {
  std::size_t files = 0;  // copied so far
  std::size_t fileCount = 0;
  std::uintmax_t bytes = 0;
  std::uintmax_t byteCount = 0;
};

// A copy that was not done. The message is French, UTF-8, and names the file and the cause.
class CopyFailure : public std::runtime_error {
 public:
  explicit CopyFailure(TextView message) : std::runtime_error(ToUtf8(message)) {}
  CopyFailure(const std::filesystem::path& file, const Failure& cause);
};

// The steps that touch the disk.
class CopySteps {
 public:
  virtual ~CopySteps() = default;
  // Copies a file to a name that is free, with its date. `onBytes` hears of each block; false gives up,
  // which is a failure with the code operation_canceled.
  [[nodiscard]] virtual Result<> CopyFile(const std::filesystem::path& from, const std::filesystem::path& to,
                                          const std::function<bool(std::uintmax_t)>& onBytes);
  // Gives a file its name, in place of the one that bears it.
  [[nodiscard]] virtual Result<> Put(const std::filesystem::path& from, const std::filesystem::path& to);
  // Waits until what was written to the disk of that folder is on it.
  [[nodiscard]] virtual Result<> Settle(const std::filesystem::path& folder);
};

struct CopyOptions {
  // Called at each block; false stops the copy.
  std::function<bool(const CopyProgress&)> onProgress;
  // The new files stand whole in that folder, and nothing has been replaced yet. What it throws ends the
  // copy.
  std::function<void(const std::filesystem::path& arrived)> beforeReplacing;
  // Where the files that are replaced stay, made when there are any; empty to let them go.
  std::filesystem::path kept;
  // False for a folder that comes from elsewhere, a key: a link there may lead to any file of the user's,
  // so it ends the copy. Elsewhere links are followed.
  bool linksInSource = true;
  bool linksInDestination = true;
};

// Copies what the folder `source` holds into the folder `destination`, made when it is missing; files of
// the same name are replaced, the others stay. Throws CopyFailure when it cannot be
// done, when the user has stopped it, and when the one folder is the other or `destination` lies in
// `source`.
void CopyContents(const std::filesystem::path& source, const std::filesystem::path& destination,
                  const CopyOptions& options, CopySteps& steps);

// The same, the folder landing under its own name in the folder `destination`.
void CopierDossier(const std::filesystem::path& source, const std::filesystem::path& destination,
                   const CopyOptions& options, CopySteps& steps);

// Where it lands.
[[nodiscard]] std::filesystem::path LandingOf(const std::filesystem::path& source,
                                              const std::filesystem::path& destination);

// Throws CopyFailure for two folders of which the one cannot be copied into the other.
void CheckFolders(const std::filesystem::path& source, const std::filesystem::path& destination);

}  // namespace talvor
