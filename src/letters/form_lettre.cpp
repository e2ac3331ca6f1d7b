#include "letters/form_lettre.h"

#include <system_error>

#include "base/fonctionnel.h"
#include "cv/cv_file.h"
#include "letters/composer.h"
#include "letters/letter_file.h"
#include "workspace/document_keeping.h"

namespace talvor {
namespace {

constexpr TextView FileMissingMessage = u"fichier non accessible";
constexpr TextView FromCvQuestion =
    u"Souhaitez-vous initialiser le modèle de lettre à partir des informations saisies dans le CV ";
constexpr TextView FirstLetterHint =
    u"Veuillez choisir les formules voulues dans la partie de gauche, la lettre s'adaptera ensuite aux "
    u"annonces auxquelles vous postulerez.";
constexpr TextView Dat = u".dat";

Text WithoutDat(const Text& name) {
  return name.ends_with(Dat) ? name.substr(0, name.size() - Dat.size()) : name;
}

}  // namespace

FormLettre::FormLettre(Principale& principale, const Clock& clock, Dialogs& dialogs, Shell& shell)
    : principale_(principale), clock_(clock), dialogs_(dialogs), shell_(shell) {
  Clear();
}

void FormLettre::Clear() {
  static_cast<LetterModel&>(*this) = {};
  SetFlag(Check_Modele, Mail, true);
  SetFlag(Check_candidature, Answer, true);
  CvListVisible = SubjectVisible = true;
  saveFailed = false;
  savedText_.clear();
}

void FormLettre::Charger() {
  Clear();
  FileList files;
  files.Point(workspace_paths::CvFolder());
  for (std::size_t i = 0; i < NomCV.size(); ++i) NomCV[i] = WithoutDat(files.List(i));
  propositions_.Load();
}

void FormLettre::NouvelleLettre() {
  // Every text goes; the flags have none and stay.
  for (const auto& field : LetterFields) (this->*(field.text)).clear();
  for (Text& sentence : Corps) sentence.clear();

  // Each group begins on its first proposition.
  propositions_.FillEmpty(Corps);

  shell_.Show(LetterForm);
  shell_.Focus(LetterForm, u"Nom");
  shell_.PumpEvents();

  // The first CV of the menu may give the sender.
  const Text cv = principale_.ImageMenu.front().toolTip;
  if (cv.ends_with(Dat) && dialogs_.Confirm(Text{FromCvQuestion} + cv + u" ?")) {
    InitLettre(FileIn(workspace_paths::CvFolder(), cv));
    return;
  }

  // A hint for the first letter of all.
  if (principale_.ImageMenu[Principale::FirstLetterSlot].picture == SlotPicture::ImageNew) {
    constexpr int BeforeHint = 500;
    shell_.Wait(BeforeHint);
    principale_.AfficherGuide(FirstLetterHint);
  }
}

void FormLettre::InitLettre(const std::filesystem::path& chemin) {
  CvListVisible = false;
  TakeFieldsOfCv(chemin, *this);
  // A CV has skills under the same name, but in a form that no sentence can quote.
  Competences.clear();
  ComposerLettre();
}

void FormLettre::ChargerFichierLettre(const std::filesystem::path& chemin) {
  loading = true;
  if (!ReadLetter(chemin, *this)) {
    loading = false;
    dialogs_.Tell(FileMissingMessage);
    return;
  }

  shell_.Show(LetterForm);
  loading = false;
  savedText_ = Text1;

  SubjectVisible = Check_Modele[Mail];
}

void FormLettre::EnregistrerLettre() {
  saveFailed = !talvor::EnregistrerLettre(*this, dialogs_, principale_);
}

void FormLettre::SaveIfChanged() {
  // A change that leaves the letter as it was is not seen here, nor is a model without a surname.
  if (loading || Nom.empty() || Text1 == savedText_) return;
  EnregistrerLettre();
  savedText_ = Text1;
}

void FormLettre::ComposerLettre() {
  talvor::ComposerLettre(*this, clock_.Today());
  SubjectVisible = !Check_Modele[Printed];
}

void FormLettre::PreviousSentence(std::size_t i) {
  if (i < CorpsCount) TakeSentence(i, propositions_.Previous(i, Corps[i]));
}

void FormLettre::NextSentence(std::size_t i) {
  if (i < CorpsCount) TakeSentence(i, propositions_.Next(i, Corps[i]));
}

void FormLettre::TakeSentence(std::size_t i, const Text& sentence) {
  Corps[i] = WithGender(sentence, Prenom);
  RecomposeUnlessLoading();
}

void FormLettre::ToggleMedium(std::size_t i) { ToggleFlag(Check_Modele, i); }

void FormLettre::ToggleOccasion(std::size_t i) { ToggleFlag(Check_candidature, i); }

void FormLettre::ToggleFlag(FlagPair& flags, std::size_t i) {
  if (i >= flags.size()) return;
  SetFlag(flags, i, !flags[i]);
  RecomposeUnlessLoading();
}

void FormLettre::RecomposeUnlessLoading() {
  if (!loading) ComposerLettre();
}

void FormLettre::BeginFromCv(std::size_t i) {
  if (i >= NomCV.size() || NomCV[i].empty()) return;
  const auto file = CvFile(NomCV[i]);
  std::error_code unreadable;
  if (std::filesystem::is_regular_file(file, unreadable)) InitLettre(file);
}

void FormLettre::ComposeAnew() {
  Text1.clear();
  ComposerLettre();
}

void FormLettre::OpenPropositions() {
  if (openDocument) openDocument(PropositionsFile());
}

void FormLettre::LeaveEmail() { ComposerLettre(); }

void FormLettre::LeavePrenom() {
  if (!Prenom.empty()) Prenom = NomPropre(Prenom);
}

}  // namespace talvor
