#include <filesystem>
#include <string>
#include <utility>

#include "base/line_file.h"
#include "cli/commands.h"
#include "cli/input.h"
#include "cv/cv_file.h"
#include "cv/identity_parser.h"
#include "cv/model_files.h"
#include "cv/renderer.h"

namespace talvor::cli {
namespace {

namespace fs = std::filesystem;

// What the parser of an identity block fills.
constexpr FieldTable<CvDocument, 11> ParsedFields{{
    {u"Prénom", &CvDocument::Prenom},
    {u"Nom", &CvDocument::Nom},
    {u"Adresse1", &CvDocument::Adresse1},
    {u"Adresse2", &CvDocument::Adresse2},
    {u"CP", &CvDocument::CP},
    {u"Ville", &CvDocument::Ville},
    {u"Tel", &CvDocument::Tel},
    {u"Mob", &CvDocument::Mob},
    {u"Email", &CvDocument::Email},
    {u"Age", &CvDocument::Age},
    {u"DateNaissance", &CvDocument::DateNaissance},
}};

}  // namespace

CvDocument CvOf(const fs::path& file) {
  CvDocument cv;
  if (!ReadCv(file, cv))
    throw CommandError("le CV " + Quoted(file.string()) + " est introuvable ou illisible");
  // The name of the file wins over the one that stands in it.
  cv.NomCV = TextOf(file.stem()).value_or(cv.NomCV);
  return cv;
}

ExitCode RendreCv(const RenderOptions& options, Console& console) {
  CvDocument cv = CvOf(options.file);
  auto page = ReadTemplate(options.model);
  if (!page) throw CommandError("le modèle " + Quoted(options.model) + " est introuvable ou illisible");
  cv.Langues = LanguageSummary(cv);
  const auto photo = options.photo ? PhotoOnPage::Picture : PhotoOnPage::None;
  // The program writes pages in the code page; what a terminal gets says its own character set.
  const Text filled = FillTemplate(cv, *std::move(page), photo).append(LineEnd);
  console.out << ToUtf8(ReplaceAll(filled, u"charset=windows-1252", u"charset=utf-8"));
  return Done;
}

ExitCode IdentiteCv(const std::string& file, Console& console) {
  CvDocument cv;
  cv.Identite = ReadText(file, console, LineEnds::AsCrLf);
  // A blank block fills nothing; the age is the one that the block tells, not one reckoned from today.
  static_cast<void>(ParseIdentity(cv));
  console.out << JsonOf(ParsedFields, cv).dump(2) << '\n';
  return Done;
}

}  // namespace talvor::cli
