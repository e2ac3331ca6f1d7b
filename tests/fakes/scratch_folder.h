// An empty folder that is the current directory for the life of the object.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace talvor {

class ScratchFolder {
 public:
  ScratchFolder() : before_(std::filesystem::current_path()) {
    std::string name = (std::filesystem::temp_directory_path() / "talvor-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no scratch folder");
    folder_ = std::filesystem::canonical(name);
    std::filesystem::current_path(folder_);
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
    std::filesystem::remove_all(folder_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::filesystem::path& Path() const { return folder_; }

 private:
  std::filesystem::path before_;
  std::filesystem::path folder_;
};

}  // namespace talvor
