#include <optional>
#include <ostream>
#include <vector>

#include "ads/contracts.h"
#include "tests/tracking/tracking_fixture.h"
#include "tracking/form_cand_messages.h"
#include "tracking/status_lists.h"

namespace talvor {
namespace {

using FormCandTest = TrackingTest;

TEST_F(FormCandTest, ANewRowWithATitleAloneTakesTheDefaults) {
  form.Intitule = u"Maçon";
  form.RunAction(DetailAction::Save);
  EXPECT_EQ(form.Num, u"1");
  const Candidature row = Read(1);
  EXPECT_EQ(row.DateDiffusion, u"01/03/2026");
  EXPECT_EQ(row.Statut, u"NON EMISE");
  EXPECT_EQ(row.Societe, u"N.C.");
  EXPECT_EQ(row.Duree, u"");
  EXPECT_EQ(Outline(form.Liste), "Candidatures non émises\n  s1: 01/03/2026 Maçon, N.C.\n");
}

TEST_F(FormCandTest, OnlyTheWholeFirstContractIsUnlimited) {
  form.Nature = u"CDI";
  form.ValeursParDefaut();
  EXPECT_EQ(form.Duree, u"");
  form.Nature = ListeContrats[1];
  form.ValeursParDefaut();
  EXPECT_EQ(form.Duree, u"");
  form.Nature = u"CDI,CONTRAT A DUREE INDETERMINEE";
  form.ValeursParDefaut();
  EXPECT_EQ(form.Duree, u"Indéterminée");
}

TEST_F(FormCandTest, ASaveShortensTheRowAndNotTheField) {
  const Text title = u"Responsable des achats et de la gestion des stocks";
  form.Intitule = title;
  form.Lieu = Text(60, u'l');
  form.www = Text(300, u'w');
  form.Description = Text(5000, u'd');
  form.Valider();
  EXPECT_EQ(form.Intitule, title);
  const Candidature row = Read(1);
  EXPECT_EQ(row.Intitule, u"Responsable des achats et de la");
  EXPECT_EQ(row.Lieu.size(), 50u);
  EXPECT_EQ(row.www.size(), 250u);
  EXPECT_EQ(row.Description.size(), 5000u);
}

TEST_F(FormCandTest, EveryFieldComesBackAtTheNextLoad) {
  for (const auto& field : DetailFields) form.*(field.text) = field.name;
  for (const auto date : {&Candidature::DateDiffusion, &Candidature::DateLimite, &Candidature::DateEnvoi,
                          &Candidature::DateRDV})
    form.*date = u"02/03/2026";
  form.Num.clear();
  form.Valider();
  const Candidature saved = form;
  form.ViderDetail();
  form.ChargerCandidature(1);
  for (const auto& field : DetailFields)
    EXPECT_EQ(form.*(field.text), saved.*(field.text)) << ToUtf8(field.name);
  EXPECT_EQ(form.DescriptionConnue, u"Description");
  EXPECT_EQ(form.SignatureCourante,
            u"VilleCPAdresse02/03/2026ReferenceRemarquesStatut02/03/2026www02/03/2026OrigineEmailTelephone"
            u"NomContactSocieteSalaireLieuDureeNatureIntitule");
  EXPECT_EQ(form.SignatureEnregistree, form.SignatureCourante);
}

TEST_F(FormCandTest, ARefusedSaveTellsOnceKeepsTheFieldsAndLosesItsNumber) {
  form.Societe = u"ACME";
  form.Valider();
  form.WebPaneVisible = true;
  form.Valider();
  form.Intitule = u"Maçon";
  form.DateEnvoi = u"31/02/2026";
  form.Valider();
  EXPECT_EQ(dialogs.told, (std::vector<Text>{Text{messages::TitleRequired}, Text{messages::NotIdentified},
                                             Text{messages::BadDate}}));
  EXPECT_EQ(shell.focus, u"FormCand.DateEnvoi");
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(form.Num, u"");
  EXPECT_EQ(form.Societe, u"ACME");
  form.DateEnvoi.clear();
  form.Valider();
  EXPECT_EQ(form.Num, u"4");
}

TEST_F(FormCandTest, ADateOfInterviewIsNotCheckedButRefusedByTheStore) {
  form.Intitule = u"Maçon";
  form.DateRDV = u"mardi";
  EXPECT_THROW(form.Valider(), StoreError);
  EXPECT_TRUE(dialogs.told.empty());
  EXPECT_EQ(Count(), 0);
}

TEST_F(FormCandTest, AnInterviewBecomesTheRowsOnceItIsADate) {
  form.Intitule = u"Maçon";
  form.Valider();
  InterviewField& field = form.SaisieRDV;
  field.Follow();
  const auto type = [&](TextView text) {
    field.Texte = text;
    field.Typed();
    field.Follow();
    form.SaveIfChanged();
  };
  type(u"24");
  EXPECT_EQ(field.Texte, u"24") << "a tick in the middle of a date leaves the field alone";
  EXPECT_EQ(Read(1).DateRDV, u"");
  type(u"24/11/2026");
  EXPECT_EQ(Read(1).DateRDV, u"24/11/2026");
  type(u"24/11/2026 14:30");
  EXPECT_EQ(Read(1).DateRDV, u"24/11/2026") << "the last date stays";
  type(u"");
  EXPECT_EQ(Read(1).DateRDV, u"") << "no interview is an answer, too";

  field.Texte = u"mardi";
  form.DateRDV = u"01/12/2026";
  field.Follow();
  EXPECT_EQ(field.Texte, u"01/12/2026") << "a date that comes into the row shows";
  field.Texte = u"mardi";
  form.ViderDetail();
  form.DateRDV = u"01/12/2026";
  field.Follow();
  EXPECT_EQ(field.Texte, u"01/12/2026") << "the row is another one";
  field.Texte = u"mardi";
  form.RunAction(DetailAction::New);
  EXPECT_EQ(field.Texte, u"");
}

TEST_F(FormCandTest, AnInterviewThatIsNoDateIsRefusedOnceAndUntilItChanges) {
  form.SaisieRDV.Texte = u"24/11/2026";
  form.QuitterRDV();
  EXPECT_TRUE(dialogs.told.empty());
  form.SaisieRDV.Texte = u"mardi";
  // The box takes the focus from the field.
  dialogs.whileTelling = [&] { form.QuitterRDV(); };
  form.QuitterRDV();
  EXPECT_EQ(dialogs.told, (std::vector<Text>{Text{messages::BadDate}}));
  EXPECT_TRUE(form.IsAtFault(u"DateRDV"));
  EXPECT_FALSE(form.IsAtFault(u"DateEnvoi"));
  form.SaisieRDV.Texte = u"mard";
  EXPECT_FALSE(form.IsAtFault(u"DateRDV"));
}

TEST_F(FormCandTest, TheTimerSavesWhatTheSignatureSees) {
  form.SaveIfChanged();
  EXPECT_EQ(Count(), 0) << "a row without a key waits";
  form.Intitule = u"Maçon";
  form.Valider();
  form.SaveIfChanged();
  EXPECT_EQ(form.SignatureEnregistree, form.SignatureCourante);

  form.Lettre = u"lettre";
  form.DateLimite = u"05/03/2026";
  form.SaveIfChanged();
  EXPECT_EQ(Read(1).Lettre, u"") << "the letter is out of the signature";
  form.Ville = u"Lyon";
  form.SaveIfChanged();
  EXPECT_EQ(Read(1).Ville, u"Lyon");
  EXPECT_EQ(Read(1).Lettre, u"lettre") << "written by the save that something else set off";
}

TEST_F(FormCandTest, ATickInsideAMessageBoxStartsNoSecondSave) {
  form.Intitule = u"Maçon";
  form.Valider();
  form.DateEnvoi = u"x";
  dialogs.whileTelling = [&] {
    form.Remarques += u"+";
    form.SaveIfChanged();
  };
  form.SaveIfChanged();
  EXPECT_EQ(dialogs.told.size(), 1u);
  dialogs.whileTelling = {};
  form.SaveIfChanged();
  EXPECT_EQ(dialogs.told.size(), 2u) << "the text has changed since";
  form.SaveIfChanged();
  EXPECT_EQ(dialogs.told.size(), 2u) << "a refused text counts as seen";
}

struct Choice {
  std::size_t index;
  Text remarks;
  bool sent;
  bool interview;
  Text after;
  friend void PrintTo(const Choice& row, std::ostream* out) { *out << "index " << row.index; }
};

class StatusChoices : public FormCandTest, public testing::WithParamInterface<Choice> {};

TEST_P(StatusChoices, StampDatesAndRemarks) {
  form.Statut = u"SANS REPONSE APRES ENTRETIEN";
  form.Remarques = GetParam().remarks;
  form.StatusList.visible = true;
  form.ChooseStatus(GetParam().index);
  EXPECT_EQ(form.Statut, ListeStatuts[GetParam().index]);
  EXPECT_EQ(form.DateEnvoi, GetParam().sent ? u"01/03/2026" : u"");
  EXPECT_EQ(form.DateRDV, GetParam().interview ? u"01/03/2026" : u"");
  EXPECT_EQ(form.Remarques, GetParam().after);
  EXPECT_FALSE(form.StatusList.visible);
  EXPECT_EQ(Count(), 0) << "a row without a key keeps the change in the fields";
}

INSTANTIATE_TEST_SUITE_P(
    Statuses, StatusChoices,
    testing::Values(Choice{0, u"vu", false, false, u"vu"}, Choice{1, u"", true, false, u""},
                    Choice{3, u"", true, false, u"Réponse le 01/03/2026\r\n"},
                    Choice{4, u"vu", true, false, u"vu"},
                    Choice{5, u"", true, true,
                           u"Réponse le 01/03/2026\r\n\r\nPrise de rendez-vous le 01/03/2026\r\n"},
                    Choice{10, u"vu", true, true, u"vu\r\nPrise de rendez-vous le 01/03/2026\r\n"}));

TEST_F(FormCandTest, AStatusChosenOnASavedRowIsSavedAndTheSameOneDoesNothing) {
  form.Intitule = u"Maçon";
  form.Valider();
  form.ChargerCandidature(1);
  EXPECT_TRUE(form.ApplyButtonVisible);
  form.ChooseStatus(1);
  EXPECT_EQ(Read(1).Statut, ListeStatuts[1]);
  EXPECT_TRUE(form.ApplyButtonVisible) << "follows the status at the next load only";
  form.DateEnvoi.clear();
  form.ChooseStatus(1);
  EXPECT_EQ(form.DateEnvoi, u"");
  form.ChooseStatus(0);
  EXPECT_EQ(form.DateEnvoi, u"") << "the first status stamps and clears nothing";
}

TEST_F(FormCandTest, TheChoiceListsOpenOnTheirEntryAndCloseWithTheFocus) {
  form.Statut = ListeStatuts[4];
  form.ToggleStatusList();
  EXPECT_TRUE(form.StatusList.visible);
  EXPECT_EQ(form.StatusList.selected, 4u);
  EXPECT_EQ(shell.focus, u"FormCand.Statut");
  form.CloseStatusList();
  EXPECT_FALSE(form.StatusList.visible);
  form.Statut = SansReponseApresEntretien;
  form.ToggleStatusList();
  EXPECT_EQ(form.StatusList.selected, std::nullopt);
  form.ToggleStatusList();
  EXPECT_FALSE(form.StatusList.visible);

  form.ToggleContractList();
  form.ChooseContract(3);
  EXPECT_EQ(form.Nature, u"INTERIM");
  EXPECT_FALSE(form.ContractList.visible);
  EXPECT_EQ(shell.focus, u"FormCand.Nature");
}

TEST_F(FormCandTest, DeletingNeedsTheHandleThatALoadHasLeft) {
  form.Supprimer();
  EXPECT_EQ(dialogs.asked.size(), 1u) << "the question comes even without a row";
  form.Intitule = u"Maçon";
  form.Valider();
  EXPECT_THROW(form.Supprimer(), StoreError) << "the list of the save has closed the handle";
  EXPECT_EQ(Count(), 1);

  form.ChargerCandidature(1);
  dialogs.answer = false;
  form.RunAction(DetailAction::Delete);
  EXPECT_EQ(form.Intitule, u"Maçon");
  dialogs.answer = true;
  form.AdresseWeb = u"http://a.example/";
  form.RunAction(DetailAction::Delete);
  EXPECT_EQ(Count(), 0);
  for (const auto& field : DetailFields) EXPECT_EQ(form.*(field.text), u"") << ToUtf8(field.name);
  EXPECT_EQ(form.TermFin + form.AdresseWeb, u"") << "the hidden controls go with the rest";
}

TEST_F(FormCandTest, ThePopupDeletesInEveryState) {
  form.Intitule = u"Maçon";
  form.Valider();
  form.MenuSupprimerCand();
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(form.Intitule, u"");
  EXPECT_TRUE(form.Liste.Empty());
}

TEST_F(FormCandTest, NewEmptiesTheDetailAndTheBrowser) {
  browser.location = u"http://a.example/";
  form.Description = form.DescriptionConnue = u"texte";
  form.Lettre = u"lettre";
  form.RunAction(DetailAction::New);
  EXPECT_EQ(form.Description + form.DescriptionConnue + form.Lettre, u"");
  EXPECT_EQ(browser.location, u"about:blank");
  EXPECT_EQ(form.TermFin, TermFinDelivered);
}

TEST_F(FormCandTest, ApplyingHandsOverTheLetterAndMarksTheRowAsSent) {
  ApplyRequest request;
  form.openApplyForm = [&](const ApplyRequest& asked) { request = asked; };
  form.Intitule = u"Maçon";
  form.Lettre = u"Madame,";
  form.OpenApplyForm();
  EXPECT_EQ(request.Texte, u"Madame,");
  EXPECT_TRUE(request.canBeSent);
  form.MarquerEnvoyee(u"a.doc", u"Monsieur,");
  const Candidature row = Read(1);
  EXPECT_EQ(row.Statut, ListeStatuts[1]);
  EXPECT_EQ(row.DateEnvoi, u"01/03/2026");
  EXPECT_EQ(row.CV + row.Lettre, u"a.docMonsieur,");
  form.OpenApplyForm();
  EXPECT_FALSE(request.canBeSent);
}

}  // namespace
}  // namespace talvor
