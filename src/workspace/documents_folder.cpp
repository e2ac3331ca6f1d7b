#include "workspace/documents_folder.h"

#include <system_error>

#include "base/line_file.h"
#include "workspace/document_keeping.h"
#include "workspace/workspace_paths.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

constexpr TextView NewerName = u"Documents";
constexpr TextView OlderName = u"Mes documents";

// The name under which a folder stands in another one, without regard to case; the name itself when
// there is none.
Text NameOnDisk(const fs::path& parent, TextView name) {
  std::error_code error;
  if (fs::is_directory(FileIn(parent, name), error)) return Text{name};
  for (fs::directory_iterator entry{parent, error}, end; !error && entry != end; entry.increment(error)) {
    const auto found = TextOf(entry->path().filename());
    std::error_code unreadable;
    if (found && CompareIgnoringCase(*found, name) == 0 && entry->is_directory(unreadable)) return *found;
  }
  return Text{name};
}

}  // namespace

Text DocumentsFolder(const Environment& environment, DocumentsLayout layout) {
  const Text profile = environment.Variable(u"userprofile");
  const bool newer = layout == DocumentsLayout::Newer || EstProgramData(environment);
  const Text name = newer ? Text{NewerName} : NameOnDisk(PathOf(profile), OlderName);
  return profile + u"/" + name + u"/";
}

fs::path ConvertedCv(const Environment& environment, DocumentsLayout layout, TextView nomCV,
                     TextView ending) {
  return PathOf(DocumentsFolder(environment, layout).append(nomCV).append(ending));
}

fs::path LastWordVersion(const Environment& environment, DocumentsLayout layout, TextView cvFile) {
  const fs::path document = ConvertedCv(environment, layout, ReplaceAll(cvFile, u".dat", u".doc"), {});
  return ExistingFile(document).value_or(document);
}

}  // namespace talvor
