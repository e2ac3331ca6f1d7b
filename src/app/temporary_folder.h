#pragma once

#include <filesystem>

namespace talvor {

// A folder of its own, gone with all it holds at the end of the object.
class TemporaryFolder {
 public:
  // Makes it in the system's folder for temporary files, or inside `parent`, hidden. Throws filesystem_error,
  // which names that folder, when that is not possible.
  TemporaryFolder();
  explicit TemporaryFolder(const std::filesystem::path& parent);
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& Path() const { return folder_; }

 private:
  std::filesystem::path folder_;
};

}  // namespace talvor
