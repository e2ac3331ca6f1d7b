#include "cv/model_files.h"

#include <system_error>

#include "base/line_file.h"
#include "workspace/document_keeping.h"
#include "workspace/workspace_paths.h"

namespace talvor {
namespace fs = std::filesystem;

bool IsBareName(TextView name) { return name.find_first_of(u"/\\") == TextView::npos; }

fs::path ModelFile(TextView name) { return FileIn(workspace_paths::ModelFolder(), name); }

std::optional<fs::path> ExistingModelFile(TextView name) {
  if (!IsBareName(name)) return std::nullopt;
  return ExistingFile(ModelFile(name));
}

bool PutPhotoOnPage(TextView nomCV) {
  const auto photo = ExistingModelFile(Text{nomCV} + u".jpg");
  if (!photo) return false;
  const fs::path onPage = ExistingModelFile(u"Photo.jpg").value_or(ModelFile(u"Photo.jpg"));
  // The photo of a CV named «Photo» is in its place already. Any other failure leaves the page with an
  // empty frame, which shows it.
  std::error_code error;
  if (!fs::equivalent(*photo, onPage, error))
    fs::copy_file(*photo, onPage, fs::copy_options::overwrite_existing, error);
  return true;
}

std::optional<Text> ReadTemplate(const fs::path& file) {
  const auto lines = ReadLines(file);
  if (!lines) return std::nullopt;
  Text text;
  for (const auto& line : *lines) text.append(line).append(LineEnd);
  return text;
}

}  // namespace talvor
