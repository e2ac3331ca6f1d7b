#include "workspace/workspace_paths.h"

#include <algorithm>
#include <system_error>

#include "base/line_file.h"

namespace talvor {

namespace workspace_paths {
namespace {

std::filesystem::path InDataFolder(const char* name) { return std::filesystem::current_path() / name; }

}  // namespace

std::filesystem::path Database() { return InDataFolder("Talvor.mdb"); }
std::filesystem::path CvFolder() { return InDataFolder("CV"); }
std::filesystem::path LetterFolder() { return InDataFolder("Lettres"); }
std::filesystem::path ModelFolder() { return InDataFolder("Modeles"); }
std::filesystem::path BackupFolder() { return InDataFolder("Sauvegardes"); }

std::filesystem::path UsualDataFolder(const Environment& environment) {
  return PathOf(environment.Variable(u"AppData")) / "Talvor";
}

}  // namespace workspace_paths

bool EstProgramData(const Environment& environment) {
  return Contains(environment.Variable(u"ALLUSERSPROFILE"), u"ProgramData");
}

void FileList::Point(const std::filesystem::path& folder) {
  names_.clear();
  std::error_code error;
  for (std::filesystem::directory_iterator entry{folder, error}, end; !error && entry != end;
       entry.increment(error)) {
    const auto name = TextOf(entry->path().filename());
    std::error_code unreadable;
    if (name && !name->starts_with(u'.') && entry->is_regular_file(unreadable)) names_.push_back(*name);
  }
  std::sort(names_.begin(), names_.end(), [](const Text& a, const Text& b) {
    const int order = CompareIgnoringCase(a, b);
    return order != 0 ? order < 0 : a < b;
  });
}

Text FileList::List(std::size_t index) const { return index < names_.size() ? names_[index] : Text{}; }

}  // namespace talvor
