#include "sending/form_convert.h"

#include <array>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <system_error>

#include "base/line_file.h"
#include "cv/model_files.h"
#include "workspace/document_keeping.h"
#include "workspace/documents_folder.h"
#include "workspace/systeme.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

constexpr TextView CloseBefore =
    u"Il est recommandé de ferme Microsoft Word ou Open Office pour faciliter la conversion";
constexpr TextView CloseAll =
    u"Il est préferable de fermer tous les documents Word afin de faciliter la conversion";

// «31/12/2026 18:42:05», where the user is; empty when the file cannot be asked.
Text DateAndTimeOf(const fs::path& file) {
  std::error_code error;
  const auto written = fs::last_write_time(file, error);
  if (error) return {};
  using std::chrono::system_clock;
  const auto onTheClock = std::chrono::file_clock::to_sys(written);
  const std::time_t seconds =
      system_clock::to_time_t(std::chrono::time_point_cast<system_clock::duration>(onTheClock));
  std::tm local{};
  ::localtime_r(&seconds, &local);
  std::array<char, 32> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%d/%m/%Y %H:%M:%S", &local);
  return FromUtf8({text.data(), length}).value_or(Text{});
}

}  // namespace

void FormConvert::Charger() {
  target_ = ConvertedCv(around_.environment, DocumentsLayout::OfTheSystem, around_.editor.NomCV, u".doc");

  const auto empty = TextOf(fs::current_path() / "DocWord.doc");
  DocProgram = empty ? around_.documents.ProgramFor(*empty) : Text{};

  if (TraitementTexteOuvert(around_.documents)) around_.dialogs.Tell(CloseBefore);

  if (const auto found = ExistingFile(target_)) {
    target_ = *found;
    Info = TextOf(found->filename()).value_or(Text{}) + u"     " + DateAndTimeOf(*found);
    infoLeads = true;
  }
}

void FormConvert::Ouvrir(const fs::path& target) {
  OuvrirDocument(TextOf(target).value_or(Text{}), around_.documents, around_.dialogs);
}

void FormConvert::OpenLastVersion() {
  if (infoLeads) Ouvrir(target_);
}

void FormConvert::OpenDocumentsFolder() {
  Ouvrir(PathOf(DocumentsFolder(around_.environment)).parent_path());
}

void FormConvert::Close() { around_.shell.Unload(ConvertForm); }

void FormConvert::ConvertToDoc() {
  if (TraitementTexteOuvert(around_.documents)) around_.dialogs.Tell(CloseAll);
  conversion_.ConvertirWord();
  around_.shell.Unload(ConvertForm);
}

void FormConvert::OpenPage() {
  Ouvrir(ExistingModelFile(u"CVtemp.html").value_or(ModelFile(u"CVtemp.html")));
}

void FormConvert::ConvertToPdf() {
  conversion_.ConvertirPDF();
  around_.shell.Unload(ConvertForm);
}

}  // namespace talvor
