#include "tracking/form_cand.h"

#include <cstdint>

#include "ads/contracts.h"
#include "base/day.h"
#include "base/fonctionnel.h"
#include "base/raised.h"
#include "tracking/form_cand_messages.h"
#include "tracking/status_lists.h"

namespace talvor {

FormCand::FormCand(Principale& principale, const Clock& clock, Dialogs& dialogs, Shell& shell,
                   Browser& browser)
    : principale_(principale), clock_(clock), dialogs_(dialogs), shell_(shell), browser_(browser) {}

void FormCand::Charger() {
  browser_.Navigate(BlankPage);
  InitListe();
  DescriptionConnue.clear();
}

void FormCand::GoTo(TextView address) {
  ShowAddress(address);
  FollowAddress();
}

Text FormCand::Today() const { return DateText(clock_.Today()); }

// The key in `Num`, which holds digits only.
std::optional<std::int32_t> FormCand::Key() const {
  if (Num.empty()) return std::nullopt;
  return static_cast<std::int32_t>(ValeurNumerique(Num));
}

void FormCand::ChargerCandidature(std::int16_t num) {
  Num.clear();
  base_ = Database::Open(clock_);
  static_cast<Candidature&>(*this) = base_.ReadRow(num);
  DescriptionConnue = Description;
  ApplyButtonVisible = Statut == NonEmise;
  SignatureCourante = SignatureEnregistree = Signature(*this);
}

void FormCand::ViderDetail() {
  static_cast<Candidature&>(*this) = {};
  DescriptionConnue.clear();
}

void FormCand::ValeursParDefaut() {
  if (DateDiffusion.empty()) DateDiffusion = Today();
  if (Statut.empty()) Statut = NonEmise;
  if (Societe.empty()) Societe = u"N.C.";
  if (Duree.empty() && Nature == ListeContrats.front()) Duree = u"Indéterminée";
}

bool FormCand::RefuseDate(TextView field, const Text& value) {
  if (DateValide(value)) return false;
  shell_.Focus(CandidatureForm, field);
  TellBadDate(field, value);
  return true;
}

void FormCand::TellBadDate(TextView field, TextView value) {
  LastRefusal = {Text{field}, Text{value}, Text{messages::BadDate}};
  dialogs_.Tell(messages::BadDate);
}

void FormCand::QuitterRDV() {
  if (refusing_ || SaisieRDV.IsDate()) return;
  const Raised refusing(refusing_);  // the box takes the focus, which ends the typing once more
  TellBadDate(u"DateRDV", SaisieRDV.Texte);
}

bool FormCand::IsAtFault(TextView field) const {
  if (!LastRefusal || LastRefusal->field != field) return false;
  if (field == u"DateRDV") return LastRefusal->value == SaisieRDV.Texte;
  const auto* detail = FindField(DetailFields, field);
  return detail != nullptr && LastRefusal->value == this->*(detail->text);
}

bool FormCand::ControleSaisie() {
  LastRefusal.reset();
  if (Intitule.empty()) {
    const TextView message = WebPaneVisible ? messages::NotIdentified : messages::TitleRequired;
    LastRefusal = {u"Intitule", {}, Text{message}};
    dialogs_.Tell(message);
    return false;
  }
  return !RefuseDate(u"DateDiffusion", DateDiffusion) && !RefuseDate(u"DateLimite", DateLimite) &&
         !RefuseDate(u"DateEnvoi", DateEnvoi);
}

void FormCand::Valider() {
  const Raised saving(saving_);
  ValeursParDefaut();
  base_ = Database::Open(clock_);
  EnregistrerLigne();
  // Saved or not: a text that was refused counts as seen until something more changes.
  SignatureEnregistree = SignatureCourante;
  InitListe();
}

void FormCand::EnregistrerLigne() {
  // The number of a new row is drawn before the check and is lost if that fails.
  const auto key = Key();
  const PendingRow row = key ? base_.EditRow(*key) : base_.BeginRow();
  if (!ControleSaisie()) return;
  const Candidature values = AsSaved(*this);
  Num = NumberText(row.num);
  base_.Save(row, values);
}

void FormCand::SaveIfChanged() {
  if (Num.empty() || saving_) return;
  SignatureCourante = Signature(*this);
  if (SignatureCourante != SignatureEnregistree) Valider();
}

void FormCand::RunAction(DetailAction action) {
  switch (action) {
    case DetailAction::New:
      ViderDetail();
      browser_.Navigate(BlankPage);
      break;
    case DetailAction::Delete:
      Supprimer();
      break;
    case DetailAction::ShowApplyForm:
      shell_.Show(ApplyForm);
      break;
    case DetailAction::Save:
      Valider();
      break;
    case DetailAction::ShowBrowser:
      MontrerCadreWeb();
      break;
  }
  if (Num.empty()) SaisieRDV.Restart();
}

void FormCand::MontrerCadreWeb() {
  ShowWebPane();
  shell_.PumpEvents();
  if (browser_.LocationURL() == BlankPage) GoTo(principale_.AdresseWeb);
}

void FormCand::Supprimer() {
  if (!dialogs_.Confirm(messages::ConfirmDelete) || Num.empty()) return;
  DeleteOn(base_);
}

void FormCand::MenuSupprimerCand() {
  if (!dialogs_.Confirm(messages::ConfirmDelete) || Num.empty()) return;
  Database own = Database::Open(clock_);
  DeleteOn(own);
}

void FormCand::DeleteOn(Database& database) {
  database.DeleteRow(*Key());
  InitListe();
  ViderControles();
}

// Empties the text of every control of the form: with the detail go the end markers of the analyser
// and the address field.
void FormCand::ViderControles() {
  static_cast<Candidature&>(*this) = {};
  TermFin.clear();
  ShowAddress({});
}

void FormCand::OpenApplyForm() {
  if (openApplyForm) openApplyForm({Lettre, DateEnvoi.empty()});
}

void FormCand::MarquerEnvoyee(TextView cv, TextView lettre) {
  Statut = ListeStatuts[1];
  DateEnvoi = Today();
  CV = cv;
  Lettre = lettre;
  Valider();
}

}  // namespace talvor
