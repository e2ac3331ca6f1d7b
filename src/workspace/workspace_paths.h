// workspace: where the data stands, and the model of the main window `Principale`.
//
// The data folder is the current directory of the process. Every path here is built from it at the
// moment of the call, so that changing the current directory moves the whole workspace.
#pragma once

#include <filesystem>
#include <vector>

#include "base/text.h"
#include "platform/environment.h"

namespace talvor {

namespace workspace_paths {

[[nodiscard]] std::filesystem::path Database();      // Talvor.mdb
[[nodiscard]] std::filesystem::path CvFolder();      // CV
[[nodiscard]] std::filesystem::path LetterFolder();  // Lettres
[[nodiscard]] std::filesystem::path ModelFolder();   // Modeles
[[nodiscard]] std::filesystem::path BackupFolder();  // Sauvegardes

// The usual data folder, <AppData>/Talvor; relative when `AppData` is empty.
[[nodiscard]] std::filesystem::path UsualDataFolder(const Environment& environment);

}  // namespace workspace_paths

// True if "ProgramData" stands in `ALLUSERSPROFILE`: the newer folder layout of the operating system.
[[nodiscard]] bool EstProgramData(const Environment& environment);

// The hidden file list of the main window: points at a folder and keeps the names read last.
class FileList {
 public:
  // Reads the names of the folder's files, sorted without regard to case. Folders, files whose name
  // begins with a full stop and names that are not UTF-8 are left out; a missing folder has no files.
  void Point(const std::filesystem::path& folder);

  [[nodiscard]] std::size_t Count() const noexcept { return names_.size(); }
  // The name at a 0-based index, empty beyond the last one.
  [[nodiscard]] Text List(std::size_t index) const;

 private:
  std::vector<Text> names_;
};

}  // namespace talvor
