#include "app/temporary_folder.h"

#include <stdlib.h>

#include <cerrno>

namespace talvor {

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
