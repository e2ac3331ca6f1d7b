#include "app/temporary_folder.h"

#include <stdlib.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace talvor {

namespace {

// The library names the folder in its own failure only since its version 13.
std::filesystem::path SystemFolder() {
  std::error_code error;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
  if (!error) return folder;
  const char* named = std::getenv("TMPDIR");
  throw std::filesystem::filesystem_error("dossier temporaire", named == nullptr ? "/tmp" : named, error);
}

}  // namespace

TemporaryFolder::TemporaryFolder() : TemporaryFolder(SystemFolder()) {}

TemporaryFolder::TemporaryFolder(const std::filesystem::path& parent) {
  std::string name = (parent / ".talvor-XXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr)
    throw std::filesystem::filesystem_error("dossier de travail", parent, {errno, std::generic_category()});
  folder_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;  // what cannot be removed stays where temporary files go
  std::filesystem::remove_all(folder_, ignored);
}

}  // namespace talvor
