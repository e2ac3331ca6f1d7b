#include "sending/form_postuler.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/line_file.h"
#include "sending/form_convert.h"
#include "sending/mail.h"
#include "workspace/document_keeping.h"
#include "workspace/documents_folder.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

constexpr TextView LetterEnding = u".dat";

constexpr TextView AskToConvert =
    u"Ce CV n'a pas été converti au format .doc. Souhaitez vous le convertir maintenant ?";
constexpr TextView NothingConverted =
    u"Vous n'avez pas converti votre CV au format word (ou pdf, ou rtf ou odt)";
constexpr TextView Sent = u"Candidature envoyée";
constexpr TextView NotSent =
    u"Problème lors de l'envoi automatique. Vous devez effectuer l'envoi manuellement via votre messagerie "
    u"et noter la candidature comme envoyée";
constexpr TextView Marked =
    u"La candidature a été marquée comme envoyée aujourd'hui. L'envoi doit être effectué par vous même via "
    u"votre propre messagerie ou par voie postale";
constexpr TextView NoConnection = u"Talvor ne parvient pas à se connecter à Internet";

bool CanBeAttached(TextView name) {
  constexpr std::array<TextView, 4> Endings{u".doc", u".docx", u".pdf", u".odt"};
  return std::any_of(Endings.begin(), Endings.end(),
                     [&](TextView ending) { return EndsWithIgnoringCase(name, ending); });
}

bool LooksLikeAddress(TextView text) { return Contains(text, u"@") && Contains(text, u"."); }

// A "#" is the tag that the merge could not resolve.
bool IsFit(TextView text) { return !text.empty() && !Contains(text, u"#"); }

bool IsFile(TextView path) {
  std::error_code unreadable;
  return !path.empty() && fs::is_regular_file(PathOf(path), unreadable);
}

}  // namespace

FormPostuler::FormPostuler(Surroundings around) : around_(std::move(around)) {}

void FormPostuler::Charger() {
  num_ = around_.formCand().Num;
  // The models; those beyond the fifth are not offered.
  LetterFiles.Point(workspace_paths::LetterFolder());
  for (std::size_t i = 0; i < ModelCount; ++i) Modele[i] = ReplaceAll(LetterFiles.List(i), LetterEnding, {});
  for (std::size_t j = std::min(LetterFiles.Count(), ModelCount); j < ModelCount; ++j)
    ModelVisible[j] = false;

  // Without any model the path leads to the folder itself, and the merge tells so.
  Merge(LetterFiles.List(0));

  for (std::size_t i = 0; i < CvCount; ++i) CV[i] = around_.principale.ImageMenu[i].toolTip;

  // After the merge: the subject of the model stands only once the model is picked by hand.
  ChangeRecipient(around_.formCand().Email);
  Objet = u"Réponse à l'annonce ref " + around_.formCand().Reference;

  around_.shell.Show(ApplyForm);

  // An advertisement that is answered on the web alone.
  if (EmailDest.empty() && !around_.formCand().www.empty()) {
    SendByMailEnabled = false;
    ChooseWay(MarkAsSent);
  }
  if (!EmailDest.empty()) ApplyOnlineVisible = false;

  ListAttachableFiles();
}

void FormPostuler::Merge(TextView fileName) {
  FusionnerLettre(FileIn(workspace_paths::LetterFolder(), fileName), around_.tags(), around_.clock.Today(),
                  *this, around_.dialogs, around_.shell);
}

void FormPostuler::ListAttachableFiles() {
  documents_ = DocumentsFolder(around_.environment);
  documents_.pop_back();
  FileList files;
  files.Point(PathOf(documents_));
  AttachableFiles.clear();
  for (std::size_t i = 0; i < files.Count(); ++i)
    if (CanBeAttached(files.List(i))) AttachableFiles.push_back(files.List(i));
}

bool FormPostuler::IsForTheSame() const { return num_ == around_.formCand().Num; }

void LoadForReview(const FormPostuler* open, Shell& shell) {
  if (open != nullptr && !open->IsForTheSame()) shell.Unload(ApplyForm);
  shell.Load(ApplyForm);
}

void FormPostuler::OpenFromFormCand(const ApplyRequest& request) {
  around_.shell.Load(ApplyForm);
  Texte = request.Texte;
  SendVisible = request.canBeSent;
  around_.shell.Show(ApplyForm);
}

void FormPostuler::OpenFromMenu() {
  around_.shell.Load(ApplyForm);
  Texte = around_.formCand().Lettre;
  PJ = around_.formCand().CV;
  around_.shell.Show(ApplyForm);
}

void FormPostuler::UpdateMarks() {
  const auto mark = [](bool fit) { return fit ? MarkOk : MarkX; };
  Ok[SenderCheck] = mark(LooksLikeAddress(Email));
  Ok[RecipientCheck] = mark(LooksLikeAddress(EmailDest));
  Ok[SubjectCheck] = mark(IsFit(Objet));
  Ok[LetterCheck] = mark(IsFit(Texte));
  // The field is taken as one path: several attachments never look fit.
  Ok[AttachmentCheck] = mark(IsFile(PJ));
}

void FormPostuler::ChangeRecipient(TextView text) {
  if (EmailDest == text) return;
  EmailDest = text;
  if (!Contains(EmailDest, u"@")) return;
  ApplyOnlineVisible = false;
  SendByMailEnabled = true;
  ChooseWay(SendByMail);
}

void FormPostuler::ChooseModel(std::size_t i) {
  if (i < ModelCount && !Modele[i].empty()) Merge(Modele[i] + Text{LetterEnding});
}

void FormPostuler::ChooseCv(std::size_t i) {
  if (i >= CvCount || CV[i].empty()) return;
  const Text name = CV[i];

  // A CV that is a file to attach. Its bare name stands in the field, without the folder.
  if (Contains(name, u".doc") || Contains(name, u".rtf") || Contains(name, u".pdf")) {
    PJ = name;
    return;
  }

  // Its converted version, in the newer layout of the documents folder, whatever the system's.
  const Text converted =
      TextOf(LastWordVersion(around_.environment, DocumentsLayout::Newer, name)).value_or(Text{});
  if (IsFile(converted)) {
    PJ = converted;
    return;
  }

  // The conversion does not come back into the field: the slot is to be clicked again.
  if (!around_.dialogs.Confirm(AskToConvert)) return;
  if (around_.chargerFichierCV) around_.chargerFichierCV(name);
  around_.shell.Show(ConvertForm);
}

void FormPostuler::ChooseWay(std::size_t i) {
  if (i > SendByMail || (i == SendByMail && !SendByMailEnabled)) return;
  Messagerie = i;
  SendLabel = i == SendByMail ? u"Envoyer la candidature" : u"Marquer comme envoyée";
}

void FormPostuler::OfferAttachableFiles() {
  // A CV may have been converted since the form was opened.
  ListAttachableFiles();
  if (AttachableFiles.empty()) return around_.dialogs.Tell(NothingConverted);
  AttachableFilesVisible = true;
  around_.shell.Focus(ApplyForm, u"File2");
}

void FormPostuler::AttachFile(std::size_t row) {
  if (row >= AttachableFiles.size()) return;
  PJ = documents_ + u"/" + AttachableFiles[row];
  AttachableFilesVisible = false;
}

void FormPostuler::SendOrMark() {
  try {
    if (Messagerie == SendByMail) return Send();
    MarquerEnvoyee();
    around_.dialogs.Tell(Marked);
  } catch (const std::exception&) {
    // Whatever has failed here, the database included, is told in these words.
    around_.dialogs.Tell(NoConnection);
  }
}

void FormPostuler::Send() {
  const bool ok = [this] {
    const Hourglass hourglass(around_.waitCursor);
    return EnvoyerParMAPI(around_.mail, EmailDest, Objet, Texte, PJ);
  }();
  if (ok) {
    MarquerEnvoyee();
    SendVisible = false;
    around_.dialogs.Tell(Sent);
    return;
  }
  around_.dialogs.Tell(NotSent);
  if (const Text left = around_.mail.LeftMessage(); !left.empty())
    around_.dialogs.Tell(u"Le message préparé, pièces jointes comprises, a été enregistré dans le fichier " +
                         Quoted(left) + u". Votre messagerie peut l’ouvrir pour l’envoyer.");
}

void FormPostuler::MarquerEnvoyee() { around_.formCand().MarquerEnvoyee(PJ, Texte); }

void FormPostuler::ApplyOnline() {
  around_.shell.Show(CandidatureForm);
  FormCand& form = around_.formCand();
  form.ShowWebPane();
  // The page of the advertisement, unless it is the one on show already.
  if (form.AdresseWeb == form.www) return;
  form.ShowAddress(form.www);
  around_.shell.PumpEvents();
  const Hourglass hourglass(around_.waitCursor);
  form.FollowAddress();
}

}  // namespace talvor
