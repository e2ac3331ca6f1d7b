#include "sending/form_postuler.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <ostream>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "base/line_file.h"
#include "tests/fakes/fakes.h"
#include "tests/fakes/scratch_folder.h"
#include "tests/fakes/sending_fakes.h"
#include "tracking/status_lists.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

constexpr TextView NoModel =
    u"Aucun modèle de lettre n'a été créé. Vous devrez rédiger le courrier d'accompagnement.";
constexpr TextView SentText = u"Candidature envoyée";
constexpr TextView NotSentText =
    u"Problème lors de l'envoi automatique. Vous devez effectuer l'envoi manuellement via votre messagerie "
    u"et noter la candidature comme envoyée";
constexpr TextView MarkedText =
    u"La candidature a été marquée comme envoyée aujourd'hui. L'envoi doit être effectué par vous même via "
    u"votre propre messagerie ou par voie postale";

// A load of the apply form runs its load, once.
class LoadingShell : public FakeShell {
 public:
  void Load(TextView form) override {
    FakeShell::Load(form);
    if (form == ApplyForm && !std::exchange(loaded, true) && onLoad) onLoad();
  }
  void Show(TextView form) override {
    if (form == ApplyForm) Load(form);
    FakeShell::Show(form);
  }

  bool loaded = false;
  std::function<void()> onLoad;
};

class FormPostulerTest : public testing::Test {
 protected:
  FormPostulerTest() {
    Database::Create(workspace_paths::Database());
    for (const char* folder : {"CV", "Lettres", "Documents"}) fs::create_directory(folder);
    environment.values[u"userprofile"] = *TextOf(scratch.Path());
    environment.values[u"ALLUSERSPROFILE"] = u"C:\\ProgramData";
    shell.onLoad = [this] { form.Charger(); };
    formCand.Intitule = u"Soudeur";
    formCand.Email = u"rh@acme.fr";
    formCand.Reference = u"R12";
    formCand.Societe = u"Acme";
  }

  static void Write(TextView file, TextView text = {}) {
    ASSERT_FALSE(WriteBytes(PathOf(file), ToCodePage(text)).Failed());
  }
  static void Model(TextView name) {
    Write(u"Lettres/" + Text{name}, u"Text1=" + Text{name} +
                                        u" #Societe#\r\nEmail=zoe@mail.fr\r\nNom=ROY\r\nPrénom=zoé\r\n"
                                        u"Objet=Pour #Reference#\r\n");
  }
  void Load() {
    principale.InitMenu();
    shell.Load(ApplyForm);
  }
  Text Documents(TextView name) { return *TextOf(scratch.Path() / "Documents") + u"/" + Text{name}; }
  Candidature Row() { return Database::Open(clock).ReadRow(1); }

  ScratchFolder scratch;
  FakeClock clock{{2026, 3, 1}};
  FakeEnvironment environment;
  FakeDialogs dialogs;
  LoadingShell shell;
  FakeBrowser browser;
  FakeMailClient mail;
  std::vector<Text> loadedCvs;
  Principale principale{shell};
  FormCand formCand{principale, clock, dialogs, shell, browser};
  FormPostuler form{{.principale = principale,
                     .formCand = [this]() -> FormCand& { return formCand; },
                     .tags = [this] { return TextsOf(formCand); },
                     .clock = clock,
                     .environment = environment,
                     .dialogs = dialogs,
                     .shell = shell,
                     .mail = mail,
                     .chargerFichierCV = [this](TextView name) { loadedCvs.emplace_back(name); }}};
};

TEST_F(FormPostulerTest, TheLoadMergesTheFirstModelAndOverridesItsSubject) {
  Model(u"b.dat");
  Model(u"A.dat");
  Write(u"CV/Zoé.dat");
  Write(u"CV/Zoé.docx");
  Load();
  EXPECT_EQ(form.Texte, u"A.dat Acme");
  EXPECT_EQ(form.Email, u"Zoe Roy<zoe@mail.fr>");
  EXPECT_EQ(form.EmailDest, u"rh@acme.fr");
  EXPECT_EQ(form.Objet, u"Réponse à l'annonce ref R12");
  EXPECT_EQ(form.Modele, (std::array<Text, 5>{u"A", u"b"}));
  EXPECT_EQ(form.ModelVisible, (std::array{true, true, false, false, false}));
  EXPECT_EQ(form.CV, (std::array<Text, 5>{u"Zoé.dat", u"Zoé.docx"}));
  EXPECT_TRUE(shell.FormeVisible(ApplyForm));
  EXPECT_TRUE(dialogs.told.empty());

  // A model picked by hand brings its own subject, and what was typed is lost.
  form.Texte = u"typed";
  form.ChooseModel(1);
  EXPECT_EQ(form.Texte, u"b.dat Acme");
  EXPECT_EQ(form.Objet, u"Pour R12");
  form.Texte = u"typed";
  form.ChooseModel(2);
  form.ChooseModel(9);
  EXPECT_EQ(form.Texte, u"typed");
}

TEST_F(FormPostulerTest, OfSixModelsTheFirstFiveAreOffered) {
  for (const TextView name : {u"f.dat", u"e.dat", u"d.dat", u"c.dat", u"b.dat", u"a.dat"}) Model(name);
  Load();
  EXPECT_EQ(form.Modele, (std::array<Text, 5>{u"a", u"b", u"c", u"d", u"e"}));
  EXPECT_EQ(form.ModelVisible, (std::array{true, true, true, true, true}));
}

TEST_F(FormPostulerTest, WithoutModelOrFolderTheMergeTellsAndTheFormOpensEmpty) {
  shell.loaded = true;
  for (const bool folder : {true, false}) {
    if (!folder) fs::remove("Lettres");
    dialogs.told.clear();
    form.Charger();
    form.UpdateMarks();
    EXPECT_EQ(dialogs.told, std::vector<Text>{Text{NoModel}});
    EXPECT_EQ(form.Texte, u"");
    EXPECT_EQ(form.ModelVisible, (std::array{false, false, false, false, false}));
    EXPECT_EQ(form.Ok[FormPostuler::LetterCheck], MarkX);
    EXPECT_TRUE(shell.FormeVisible(ApplyForm));
  }
}

struct Recipient {
  TextView email, www;
  bool byMail, online;
  std::optional<std::size_t> way;
  TextView label;
  friend void PrintTo(const Recipient& row, std::ostream* out) {
    *out << "\"" << ToUtf8(row.email) << "\" \"" << ToUtf8(row.www) << "\"";
  }
};
class Recipients : public FormPostulerTest, public testing::WithParamInterface<Recipient> {};

TEST_P(Recipients, DecideTheWaysOnOffer) {
  formCand.Email = GetParam().email;
  formCand.www = GetParam().www;
  Load();
  EXPECT_EQ(form.SendByMailEnabled, GetParam().byMail);
  EXPECT_EQ(form.ApplyOnlineVisible, GetParam().online);
  EXPECT_EQ(form.Messagerie, GetParam().way);
  EXPECT_EQ(form.SendLabel, GetParam().label);
  // An address typed in opens the way by mail at once; other letters change nothing.
  form.ChangeRecipient(u"x");
  EXPECT_EQ(form.SendByMailEnabled, GetParam().byMail);
  form.ChangeRecipient(u"x@");
  EXPECT_TRUE(form.SendByMailEnabled);
  EXPECT_FALSE(form.ApplyOnlineVisible);
  EXPECT_EQ(form.Messagerie, FormPostuler::SendByMail);
  EXPECT_EQ(form.SendLabel, u"Envoyer la candidature");
}

INSTANTIATE_TEST_SUITE_P(
    Load, Recipients,
    testing::Values(Recipient{u"rh@acme.fr", u"", true, false, 1, u"Envoyer la candidature"},
                    Recipient{u"rh@acme.fr", u"http://a", true, false, 1, u"Envoyer la candidature"},
                    Recipient{u"", u"http://a", false, true, 0, u"Marquer comme envoyée"},
                    Recipient{u"", u"", true, true, std::nullopt, u"Postuler"},
                    Recipient{u"par courrier", u"http://a", true, false, std::nullopt, u"Postuler"}));

TEST_F(FormPostulerTest, TheThreeWaysInDifferInWhatTheyReplace) {
  Model(u"a.dat");
  formCand.Lettre = u"stored";
  formCand.CV = u"C.doc";

  formCand.RunAction(DetailAction::ShowApplyForm);
  EXPECT_EQ(form.Texte, u"a.dat Acme");
  EXPECT_EQ(form.PJ, u"");
  EXPECT_TRUE(form.SendVisible);

  formCand.openApplyForm = [this](const ApplyRequest& request) { form.OpenFromFormCand(request); };
  formCand.DateEnvoi = u"01/02/2026";
  formCand.OpenApplyForm();
  EXPECT_EQ(form.Texte, u"stored");
  EXPECT_EQ(form.PJ, u"");
  EXPECT_FALSE(form.SendVisible);
  formCand.DateEnvoi.clear();
  formCand.Lettre.clear();
  formCand.OpenApplyForm();
  EXPECT_EQ(form.Texte, u"");
  EXPECT_TRUE(form.SendVisible);

  formCand.DateEnvoi = u"01/02/2026";
  formCand.Lettre = u"again";
  form.OpenFromMenu();
  EXPECT_EQ(form.Texte, u"again");
  EXPECT_EQ(form.PJ, u"C.doc");
  EXPECT_TRUE(form.SendVisible);
  EXPECT_EQ(shell.calls.back(), u"Show FormPostuler");
}

// Each mark by itself: a value, and whether it is fit.
struct Checked {
  FormPostuler::Check check;
  TextView value;
  bool fit;
  friend void PrintTo(const Checked& row, std::ostream* out) {
    *out << row.check << " \"" << ToUtf8(row.value) << "\"";
  }
};
class Checks : public FormPostulerTest, public testing::WithParamInterface<Checked> {
 protected:
  Text& Field(FormPostuler::Check check) {
    switch (check) {
      case FormPostuler::SenderCheck:
        return form.Email;
      case FormPostuler::RecipientCheck:
        return form.EmailDest;
      case FormPostuler::LetterCheck:
        return form.Texte;
      case FormPostuler::SubjectCheck:
        return form.Objet;
      default:
        return form.PJ;
    }
  }
};

TEST_P(Checks, TellWhatIsFitToGoAndTouchNothingElse) {
  Write(u"cv.doc");
  form.Email = form.EmailDest = u"a@b.fr";
  form.Texte = form.Objet = u"texte";
  form.PJ = u"cv.doc";
  form.UpdateMarks();
  EXPECT_EQ(form.Ok, (std::array{MarkOk, MarkOk, MarkOk, MarkOk, MarkOk}));
  Field(GetParam().check) = GetParam().value;
  form.UpdateMarks();
  std::array<CheckMark, 5> expected{MarkOk, MarkOk, MarkOk, MarkOk, MarkOk};
  if (!GetParam().fit) expected[GetParam().check] = MarkX;
  EXPECT_EQ(form.Ok, expected);
  EXPECT_TRUE(form.SendVisible);
}

INSTANTIATE_TEST_SUITE_P(Marks, Checks,
                         testing::Values(Checked{FormPostuler::SenderCheck, u"", false},
                                         Checked{FormPostuler::SenderCheck, u"Zoé Roy<zoe.mail.fr>", false},
                                         Checked{FormPostuler::SenderCheck, u"Zoé Roy<zoe@mail>", false},
                                         Checked{FormPostuler::SenderCheck, u".@", true},
                                         Checked{FormPostuler::RecipientCheck, u"", false},
                                         Checked{FormPostuler::RecipientCheck, u"rh@acme", false},
                                         Checked{FormPostuler::RecipientCheck, u"rh.acme.fr", false},
                                         Checked{FormPostuler::RecipientCheck, u"#@.", true},
                                         Checked{FormPostuler::LetterCheck, u"", false},
                                         Checked{FormPostuler::LetterCheck, u"Bonjour #Titer#", false},
                                         Checked{FormPostuler::LetterCheck, u"Langage C#", false},
                                         Checked{FormPostuler::SubjectCheck, u"", false},
                                         Checked{FormPostuler::SubjectCheck, u"ref #Ville#", false},
                                         Checked{FormPostuler::AttachmentCheck, u"", false},
                                         Checked{FormPostuler::AttachmentCheck, u"absent.doc", false},
                                         Checked{FormPostuler::AttachmentCheck, u"CV", false},
                                         Checked{FormPostuler::AttachmentCheck, u"cv.doc;cv.doc", false}));

TEST_F(FormPostulerTest, AFormOpenForAnotherCandidatureBeginsAnew) {
  const auto callsOf = [&](const FormPostuler* open) {
    shell.calls.clear();
    LoadForReview(open, shell);
    return shell.calls;
  };
  const std::vector<Text> goesOn{u"Load FormPostuler"};
  const std::vector<Text> beginsAnew{u"Unload FormPostuler", u"Load FormPostuler"};
  formCand.Num = u"3";
  Load();
  EXPECT_EQ(callsOf(&form), goesOn);
  formCand.Num = u"4";
  EXPECT_EQ(callsOf(&form), beginsAnew) << "its recipient is that of another company";
  EXPECT_EQ(callsOf(nullptr), goesOn);
  formCand.Num.clear();
  EXPECT_EQ(callsOf(&form), beginsAnew) << "one that is not saved is another one, too";
}

TEST_F(FormPostulerTest, AnAttachmentRemovedMeanwhileTurnsItsMark) {
  Write(u"Documents/x.pdf");
  form.PJ = Documents(u"x.pdf");
  form.UpdateMarks();
  EXPECT_EQ(form.Ok[FormPostuler::AttachmentCheck], MarkOk);
  fs::remove("Documents/x.pdf");
  form.UpdateMarks();
  EXPECT_EQ(form.Ok[FormPostuler::AttachmentCheck], MarkX);
}

TEST_F(FormPostulerTest, ASlotGivesItsFileOrItsConvertedVersionOrTheConversion) {
  form.CV = {u"a.docx", u"b.rtf", u"c.pdf.dat", u"Roy Zoé.dat", u""};
  for (std::size_t i = 0; i < 3; ++i) {
    form.ChooseCv(i);
    EXPECT_EQ(form.PJ, form.CV[i]);
  }
  form.PJ = u"before";
  form.ChooseCv(4);
  dialogs.answer = false;
  form.ChooseCv(3);
  EXPECT_EQ(dialogs.asked,
            std::vector<Text>{
                u"Ce CV n'a pas été converti au format .doc. Souhaitez vous le convertir maintenant ?"});
  EXPECT_EQ(form.PJ, u"before");
  EXPECT_TRUE(loadedCvs.empty());

  dialogs.answer = true;
  form.ChooseCv(3);
  EXPECT_EQ(loadedCvs, std::vector<Text>{u"Roy Zoé.dat"});
  EXPECT_EQ(shell.calls.back(), u"Show FormConvert");
  EXPECT_EQ(form.PJ, u"before");

  // Clicked again once it is converted; the newer folder whatever the layout.
  Write(u"Documents/Roy Zoé.doc");
  environment.values.erase(u"ALLUSERSPROFILE");
  form.ChooseCv(3);
  EXPECT_EQ(form.PJ, Documents(u"Roy Zoé.doc"));
  EXPECT_EQ(dialogs.asked.size(), 2u);
}

TEST_F(FormPostulerTest, TheListOfDocumentsShowsWhatCanBeAttached) {
  Load();
  form.OfferAttachableFiles();
  EXPECT_FALSE(form.AttachableFilesVisible);
  EXPECT_EQ(dialogs.told.back(), u"Vous n'avez pas converti votre CV au format word (ou pdf, ou rtf ou odt)");

  for (const TextView name : {u"a.doc", u"b.DOCX", u"c.pdf", u"d.odt", u"e.rtf", u"f.doc.bak", u"doc"})
    Write(u"Documents/" + Text{name});
  form.OfferAttachableFiles();
  EXPECT_TRUE(form.AttachableFilesVisible);
  EXPECT_EQ(shell.focus, u"FormPostuler.File2");
  EXPECT_EQ(form.AttachableFiles, (std::vector<Text>{u"a.doc", u"b.DOCX", u"c.pdf", u"d.odt"}));
  form.AttachFile(4);
  EXPECT_TRUE(form.AttachableFilesVisible);
  form.CloseAttachableFiles();
  EXPECT_FALSE(form.AttachableFilesVisible);
  EXPECT_EQ(form.PJ, u"");
  form.OfferAttachableFiles();
  form.AttachFile(1);
  EXPECT_EQ(form.PJ, Documents(u"b.DOCX"));
  EXPECT_FALSE(form.AttachableFilesVisible);
}

TEST_F(FormPostulerTest, TheListOfDocumentsFollowsTheOlderLayout) {
  environment.values.erase(u"ALLUSERSPROFILE");
  fs::create_directory("Mes documents");
  Write(u"Mes documents/a.doc");
  Load();
  form.OfferAttachableFiles();
  form.AttachFile(0);
  EXPECT_EQ(form.PJ, *TextOf(scratch.Path()) + u"/Mes documents/a.doc");
}

TEST_F(FormPostulerTest, ASendThatWorksMarksTheCandidatureAndHidesTheButton) {
  Model(u"a.dat");
  Load();
  Write(u"Documents/cv.doc");
  form.PJ = Documents(u"cv.doc");
  form.Texte = u"\r\nBonjour\r\n";
  form.SendOrMark();
  EXPECT_EQ(mail.steps[2], u"SetRecipient rh@acme.fr");
  EXPECT_EQ(mail.steps[3], u"SetSubject Réponse à l'annonce ref R12");
  EXPECT_EQ(mail.steps[4], u"SetNoteText Bonjour");
  EXPECT_EQ(dialogs.told, std::vector<Text>{Text{SentText}});
  EXPECT_FALSE(form.SendVisible);
  const Candidature row = Row();
  EXPECT_EQ(row.Statut, ListeStatuts[1]);
  EXPECT_EQ(row.DateEnvoi, u"01/03/2026");
  EXPECT_EQ(row.CV, form.PJ);
  EXPECT_EQ(row.Lettre, u"Bonjour");
}

TEST_F(FormPostulerTest, AFailedSendMarksNothingAndLeavesTheButton) {
  Model(u"a.dat");
  Load();
  mail.failing = {u"Send"};
  form.SendOrMark();
  EXPECT_EQ(dialogs.told, std::vector<Text>{Text{NotSentText}});
  EXPECT_TRUE(form.SendVisible);
  EXPECT_EQ(Database::Open(clock).CountRows(), 0);
  EXPECT_EQ(formCand.DateEnvoi, u"");

  // The file in which the message has been left is told besides.
  mail.left = u"Documents/Message.eml";
  form.SendOrMark();
  ASSERT_EQ(dialogs.told.size(), 3u);
  EXPECT_EQ(dialogs.told[1], NotSentText);
  EXPECT_TRUE(Contains(dialogs.told[2], mail.left));
}

TEST_F(FormPostulerTest, MarkingAsSentWritesTheCandidatureAndKeepsTheButton) {
  Model(u"a.dat");
  Load();
  form.ChooseWay(FormPostuler::MarkAsSent);
  EXPECT_EQ(form.SendLabel, u"Marquer comme envoyée");
  form.PJ = u"a.doc;b.pdf";
  form.SendOrMark();
  EXPECT_TRUE(mail.steps.empty());
  EXPECT_EQ(dialogs.told, std::vector<Text>{Text{MarkedText}});
  EXPECT_TRUE(form.SendVisible);
  EXPECT_EQ(Row().Statut, ListeStatuts[1]);
  EXPECT_EQ(Row().DateEnvoi, u"01/03/2026");
  EXPECT_EQ(Row().CV, u"a.doc;b.pdf");
  EXPECT_EQ(Row().Lettre, u"a.dat Acme");
}

TEST_F(FormPostulerTest, AFailureOfTheDatabaseIsToldInTheWordsOfTheConnection) {
  Model(u"a.dat");
  Load();
  fs::remove("Talvor.mdb");
  for (const std::size_t way : {FormPostuler::SendByMail, FormPostuler::MarkAsSent}) {
    form.ChooseWay(way);
    form.SendOrMark();
    EXPECT_EQ(dialogs.told.back(), u"Talvor ne parvient pas à se connecter à Internet");
    EXPECT_TRUE(form.SendVisible);
  }
}

TEST_F(FormPostulerTest, ApplyingOnlineLeadsToThePageUnlessItIsOnShow) {
  formCand.Email.clear();
  formCand.www = u"http://annonces.example/4";
  Load();
  browser.location = u"elsewhere";
  formCand.AdresseWeb = formCand.www;
  form.ApplyOnline();
  EXPECT_TRUE(formCand.WebPaneVisible);
  EXPECT_EQ(shell.calls.back(), u"Show FormCand");
  EXPECT_EQ(browser.location, u"elsewhere");

  formCand.AdresseWeb = u"http://other";
  form.ApplyOnline();
  EXPECT_EQ(browser.location, u"http://annonces.example/4");
  EXPECT_EQ(formCand.AdresseWeb, u"http://annonces.example/4");
}

}  // namespace
}  // namespace talvor
