#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/host.h"
#include "app/installation.h"
#include "app/libre_office.h"
#include "app/temporary_folder.h"
#include "base/code_page.h"
#include "base/line_file.h"
#include "cli/commands.h"
#include "cv/cv_file.h"
#include "cv/model_files.h"
#include "cv/renderer.h"
#include "workspace/document_keeping.h"

namespace talvor::cli {
namespace {

namespace fs = std::filesystem;

// Where the template and the photo of a CV are looked for: the data folder told, or else the one in
// which the CV lies and the usual one; and behind them the delivered files.
std::vector<fs::path> ModelFolders(const std::string& workspace, const fs::path& cv) {
  std::vector<fs::path> folders;
  if (workspace.empty()) {
    folders.push_back(fs::absolute(cv).parent_path().parent_path() / "Modeles");
    folders.push_back(workspace_paths::UsualDataFolder(SystemEnvironment{}) / "Modeles");
  } else {
    folders.push_back(fs::path{workspace} / "Modeles");
  }
  folders.push_back(DeliveredFiles() / "Modeles");
  return folders;
}

std::optional<fs::path> FindIn(const std::vector<fs::path>& folders, TextView name) {
  if (!IsBareName(name)) return std::nullopt;
  for (const fs::path& folder : folders)
    if (auto file = ExistingFile(FileIn(folder, name))) return file;
  return std::nullopt;
}

// Writes the page of a CV, with its photo beside it, into a folder.
fs::path WritePage(CvDocument cv, const std::vector<fs::path>& folders, const fs::path& folder) {
  const auto model = FindIn(folders, cv.Modele);
  auto page = model ? ReadTemplate(*model) : std::nullopt;
  if (!page) throw CommandError("le modèle " + Quoted(ToUtf8(cv.Modele)) + " est introuvable ou illisible");
  const auto photo = FindIn(folders, cv.NomCV + u".jpg");
  if (photo) fs::copy_file(*photo, folder / "Photo.jpg");
  cv.Langues = LanguageSummary(cv);
  const Text filled =
      FillTemplate(cv, *std::move(page), photo ? PhotoOnPage::Picture : PhotoOnPage::None).append(LineEnd);
  const fs::path file = folder / "CVtemp.html";
  if (const auto written = WriteBytes(file, ToCodePage(filled)); written.Failed())
    throw fs::filesystem_error("page", file, written.Code());
  return file;
}

}  // namespace

ExitCode ConvertirCv(const std::string& workspace, const ConvertOptions& options, Console& console) {
  const fs::path target = fs::absolute(options.target);
  if (!IsDocumentEnding(TextOf(target.extension()).value_or(Text{})))
    throw CommandError("le format de " + Quoted(options.target) +
                       " n’est ni .doc, ni .docx, ni .odt, ni .pdf");
  CvDocument cv = CvOf(options.file);
  LibreOffice office;
  if (office.HasOpen(target))
    throw CommandError(Quoted(options.target) +
                       "\u00A0: Le fichier est en cours d'utilisation. Conversion impossible");
  const TemporaryFolder scratch;
  const fs::path page = WritePage(std::move(cv), ModelFolders(workspace, options.file), scratch.Path());
  const auto exported = office.Export(page, target);
  if (exported.Failed()) throw CommandError(ToUtf8(exported.Why().Cause()));
  console.out << options.target << '\n';
  return Done;
}

}  // namespace talvor::cli
