#include "app/host.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <system_error>

#include "base/line_file.h"

namespace talvor {
namespace {

Text Set(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? Text{} : FromUtf8(value).value_or(Text{});
}

Text HomeFolder() { return Set("HOME"); }

Text ApplicationData() {
  const Text folder = Set("XDG_DATA_HOME");
  // A relative folder there is to be ignored.
  if (folder.starts_with(u'/')) return folder;
  const Text home = HomeFolder();
  return home.empty() ? Text{} : home + u"/.local/share";
}

// Where the session has a folder of the user's own, no other user comes first with a file's name.
Text TemporaryFiles() {
  std::error_code error;
  const Text own = Set("XDG_RUNTIME_DIR");
  if (own.starts_with(u'/') && std::filesystem::is_directory(PathOf(own), error)) return own;
  const auto folder = std::filesystem::temp_directory_path(error);
  return error ? Text{u"/tmp"} : TextOf(folder).value_or(Text{});
}

}  // namespace

Day SystemClock::Today() const {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&now, &local);
  return DayOf({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday}).value_or(Day{});
}

Text SystemEnvironment::Variable(TextView name) const {
  const Text value = Set(ToUtf8(name).c_str());
  if (!value.empty()) return value;
  if (name == u"AppData") return ApplicationData();
  if (name == u"userprofile" || name == u"homepath") return HomeFolder();
  if (name == u"temp") return TemporaryFiles();
  // The user's documents lie in "Documents", as in the newer layout.
  if (name == u"ALLUSERSPROFILE") return u"/ProgramData";
  return {};
}

}  // namespace talvor
