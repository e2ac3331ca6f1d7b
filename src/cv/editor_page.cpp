// The part of the editor that loads a CV and renders its page.
#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>

#include "base/code_page.h"
#include "base/fonctionnel.h"
#include "base/line_file.h"
#include "cv/cv_file.h"
#include "cv/editor.h"
#include "cv/editor_texts.h"
#include "cv/model_files.h"
#include "cv/renderer.h"
#include "workspace/document_keeping.h"

namespace talvor {
namespace {

// The name that a CV takes from its owner. After three homonyms no more are looked for: a fourth
// overwrites the third copy.
Text NameFromOwner(const CvDocument& cv) {
  Text name{TrimBlanks(Normaliser(cv.Nom) + u" " + Normaliser(cv.Prenom))};
  for (int i = 0; i < 3; ++i)
    if (ExistingFile(CvFile(name))) name.insert(0, u"Copie de ");
  return name;
}

}  // namespace

void FormRedigerCV::TakeLine(TextView line) {
  auto parsed = ParseCvLine(line);
  if (!parsed) return;
  const auto* field = ApplyCvLine(*this, *std::move(parsed));
  if (field == nullptr) return;
  if (field->name == u"DateNaissance") AgeFromBirthDate();
  if (const auto* mirror = FindField(IdentityFields, field->name))
    around_.principale.*(mirror->text) = this->*(field->text);
}

void FormRedigerCV::LoadPhotoOf(TextView name) {
  const auto file = ExistingModelFile(Text{name} + u".jpg");
  if (!file) return;
  if (auto picture = ReadBytes(*file)) Photo = *std::move(picture);
}

void FormRedigerCV::ChargerFichierCV(const std::filesystem::path& chemin) {
  constexpr std::size_t ExtensionLength = 4;

  // No render starts while the fields change one by one.
  RenderingOn = false;
  if (const auto lines = ReadLines(chemin))
    for (const TextView line : *lines) TakeLine(line);

  // The template's own picture stands in until the photo is found.
  Photo.clear();
  LoadPhotoOf(NomModele);

  const double language = ValeurNumerique(LangueCV);
  around_.menus.Check(u"MenuAnglais", language == 1);
  around_.menus.Check(u"MenuFrancais", language == 0);

  RenderingOn = true;

  // The name of the file wins over the one that stands in it.
  NomCV = TextOf(chemin.filename()).value_or(NomCV);
  NomCV.resize(NomCV.size() - std::min(NomCV.size(), ExtensionLength));
  unsaved_ = false;
  LoadPhotoOf(NomCV);

  VisualisationCV();
  ZonesTitle = Text{editor_texts::ZonesLabel} + u" (" + NomCV + u")";
}

void FormRedigerCV::VisualisationCV() {
  if (!RenderingOn) return;
  IdentityBoxVisible = false;

  const auto file = ExistingModelFile(Modele);
  auto page = file ? ReadTemplate(*file) : std::nullopt;
  if (!page) return;

  Langues = LanguageSummary(*this);
  const auto photo = PutPhotoOnPage(NomCV) ? PhotoOnPage::Picture : PhotoOnPage::None;
  const Text filled = FillTemplate(*this, *std::move(page), photo).append(LineEnd);

  // A page that cannot be written is not shown either; the CV is saved all the same.
  const auto output = ModelFile(u"CVtemp.html");
  if (!WriteBytes(output, ToCodePage(filled)).Failed())
    if (const auto address = TextOf(output)) around_.preview.Navigate(*address);

  if (around_.layOut) around_.layOut();

  if (!Nom.empty()) SaveUnderName();
}

// A CV without a name takes that of its owner.
void FormRedigerCV::SaveUnderName() {
  if (NomCV.empty()) NomCV = NameFromOwner(*this);
  SauvegarderCV();
}

}  // namespace talvor
