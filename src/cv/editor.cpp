#include "cv/editor.h"

#include <algorithm>
#include <utility>

#include "base/fonctionnel.h"
#include "cv/cv_file.h"
#include "cv/editor_texts.h"
#include "cv/identity_parser.h"

namespace talvor {
namespace {

constexpr TextView EmptyPage = u"about:<html><body bgcolor=#FFFFFE></body></html>";
constexpr TextView TemplateEnding = u".htm";

bool IsAnyOf(TextView name, std::initializer_list<TextView> names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool RendersOnChange(TextView field) {
  return IsAnyOf(
      field, {u"Gras", u"Souligné", u"Indentation", u"Saut", u"Couleur", u"Police", u"Modèle", u"LangueCV"});
}

// The zones that render when they are left with a text in them.
bool RendersOnLeaving(TextView field) {
  return IsAnyOf(field, {u"Fonction", u"Etudes", u"Formations", u"Experiences", u"Competences", u"Objectifs",
                         u"Divers", u"LanguesPlus"});
}

}  // namespace

FormRedigerCV::FormRedigerCV(Surroundings surroundings)
    : ZonesTitle(editor_texts::ZonesLabel), around_(std::move(surroundings)) {}

void FormRedigerCV::Open(int width) {
  if (width < CompactUnder) CompactLayout();

  FileList files;
  files.Point(workspace_paths::ModelFolder());
  templateRows.clear();
  for (std::size_t i = 0; i < files.Count(); ++i) {
    const Text name = files.List(i);
    if (EndsWithIgnoringCase(name, TemplateEnding))
      templateRows.push_back(name.substr(0, name.size() - TemplateEnding.size()));
  }

  around_.preview.Navigate(EmptyPage);

  // The user's first CV.
  if (around_.principale.ImageMenu[0].picture != SlotPicture::ImageNew) return;
  constexpr int UntilTheFormStands = 500;
  around_.shell.Wait(UntilTheFormStands);
  around_.principale.AfficherGuide(editor_texts::Welcome);
}

void FormRedigerCV::SauvegarderCV() {
  if (talvor::SauvegarderCV(*this, around_.dialogs, around_.principale)) unsaved_ = false;
}

void FormRedigerCV::EnregistrerSaisie() {
  if (unsaved_ && !Nom.empty()) SaveUnderName();
}

void FormRedigerCV::Change(TextView field, TextView text) {
  const auto* known = FindField(CvFields, field);
  if (known == nullptr || this->*(known->text) == text) return;
  this->*(known->text) = text;
  unsaved_ = true;
  if (field == u"DateNaissance") AgeFromBirthDate();
  if (RendersOnChange(field)) VisualisationCV();
}

void FormRedigerCV::AgeFromBirthDate() {
  constexpr double YoungestLikely = 15;
  constexpr double OldestLikely = 80;
  constexpr int DaysOfAYear = 365;
  const double age = ValeurNumerique(Age);
  // An age that looks right stays, even where the date says another.
  if (age >= YoungestLikely && age <= OldestLikely) return;
  if (const auto birth = ParseDate(DateNaissance))
    Age = NumberText((around_.clock.Today().serial - birth->serial) / DaysOfAYear);
}

void FormRedigerCV::Enter(TextView field) {
  if (field == u"NomModele") OpenPanel(Panel::Templates);
  if (field == u"Police") OpenPanel(Panel::Fonts);
}

void FormRedigerCV::Leave(TextView field) {
  const auto capitalised = [](Text& text) {
    if (text.size() >= 2) text.front() = ToUpper(text.front());
  };
  if (field == u"Identite") {
    if (!ParseIdentity(*this, [this] { AgeFromBirthDate(); })) return;
    IdentityBoxVisible = false;
    VisualisationCV();
  } else if (field == u"Nom") {
    Nom = UpperCase(Nom);
    ClosePanels();
  } else if (field == u"Prénom" && Prenom.size() > 1) {
    Prenom = NomPropre(Prenom);
    VisualisationCV();
  } else if (field == u"Adresse1") {
    Adresse1 = NomPropre(Adresse1);
  } else if (field == u"Pays") {
    Pays = NomPropre(Pays);
  } else if (field == u"Ville") {
    capitalised(Ville);
  } else if (field == u"LieuNaissance") {
    capitalised(LieuNaissance);
  } else if (IsAnyOf(field, {u"NomModele", u"Police"})) {
    ClosePanels();
  } else if (const auto* zone = FindField(CvFields, field); zone != nullptr && RendersOnLeaving(field)) {
    if (!(this->*(zone->text)).empty()) VisualisationCV();
  }
}

}  // namespace talvor
