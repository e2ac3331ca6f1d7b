#include <array>
#include <filesystem>
#include <vector>

#include "letters/form_lettre.h"

#include "tests/letters/letters_fixture.h"

namespace talvor {
namespace {

class FormLettreTest : public LettersTest {
 protected:
  FormLettreTest() {
    Write("propositions.txt", u"1;bonjour\r\n1;bonsoir\r\n2;prêt(e)\r\n3;c\r\n4;d\r\n5;e\r\n1;autre\r\n");
    Write(
        "CV/a.dat",
        u"Nom=Durand\r\nPrénom=Marie\r\nAdresse1=1 rue X<N>fond de cour\r\nCompetences=paie\r\nEtudes=bac\r\n"
        u"NomCV=a\r\nLangueCV=0\r\nCorps=x\r\n0:Corps=y\r\n0:LangueProf=1\r\nFonction=Juriste=x\r\n");
    Write("CV/b.doc", u"");
    principale.InitMenu();
    form.Charger();
  }
};

TEST_F(FormLettreTest, BeginsOnAMailInAnswerAndListsTheCvs) {
  EXPECT_EQ(form.Check_Modele, (FlagPair{false, true}));
  EXPECT_EQ(form.Check_candidature, (FlagPair{false, true}));
  EXPECT_EQ(form.NomCV, (std::array<Text, 5>{u"a", u"b.doc", u"", u"", u""}));

  for (const std::size_t i : {1u, 2u, 9u}) form.BeginFromCv(i);
  EXPECT_TRUE(form.CvListVisible) << "no file of that name";
  form.BeginFromCv(0);
  EXPECT_FALSE(form.CvListVisible);
  EXPECT_EQ(form.Nom, u"Durand");
}

TEST_F(FormLettreTest, ANewLetterTakesTheFirstCvAndTheFirstSentences) {
  form.Text1 = u"old";
  form.ToggleMedium(0);
  form.NouvelleLettre();
  EXPECT_EQ(dialogs.asked, std::vector<Text>{u"Souhaitez-vous initialiser le modèle de lettre à partir des "
                                             u"informations saisies dans le CV a.dat ?"});
  EXPECT_EQ(shell.focus, u"FormLettre.Nom");
  EXPECT_EQ(shell.waited, 0) << "no hint behind a CV";
  EXPECT_EQ(form.Check_Modele, (FlagPair{true, false})) << "the flags stay";
  EXPECT_EQ(form.Adresse1, u"1 rue X\r\nfond de cour");
  EXPECT_EQ(form.Fonction, u"Juriste=x");
  EXPECT_EQ(form.Competences, u"");
  EXPECT_EQ(form.Corps, (std::array<Text, 5>{u"bonjour", u"prêt(e)", u"c", u"d", u"e"}));
  EXPECT_TRUE(form.Text1.starts_with(u"Marie Durand\r\n1 rue X\r\nfond de cour\r\n"));
  EXPECT_TRUE(form.Text1.ends_with(u"\r\nbonjour\r\nprête\r\nc\r\nd\r\ne\r\n"));
  EXPECT_FALSE(form.SubjectVisible);
}

TEST_F(FormLettreTest, WithoutACvTheFirstLetterGetsAHint) {
  dialogs.answer = false;
  form.NouvelleLettre();
  EXPECT_TRUE(Contains(principale.InfoGuide, u"la lettre s'adaptera ensuite aux annonces"));
  EXPECT_EQ(shell.waited, 500 + 1000);
  EXPECT_EQ(form.Text1, u"") << "nothing is composed yet";

  Write("Lettres/x.dat", u"");
  principale.InfoGuide.clear();
  std::filesystem::remove("CV/a.dat");
  principale.InitMenu();
  form.NouvelleLettre();
  EXPECT_EQ(dialogs.asked.size(), 1u) << "a Word file gives no sender";
  EXPECT_EQ(principale.InfoGuide, u"") << "not the first letter";
}

TEST_F(FormLettreTest, TheButtonsPutTheSentenceInItsGenderAndCompose) {
  form.Prenom = u"Marie";
  form.NextSentence(0);
  EXPECT_EQ(form.Corps[0], u"bonsoir");
  EXPECT_TRUE(Contains(form.Text1, u"\r\n\r\nbonsoir\r\n"));
  form.PreviousSentence(0);
  form.PreviousSentence(0);
  EXPECT_EQ(form.Corps[0], u"bonjour") << "back does not wrap";
  form.NextSentence(1);
  EXPECT_EQ(form.Corps[1], u"prête");
  form.Text1 = u"typed by hand";
  form.PreviousSentence(1);
  EXPECT_EQ(form.Corps[1], u"prête");
  EXPECT_TRUE(Contains(form.Text1, u"prête")) << "composed even where nothing moves";

  form.loading = true;
  form.Text1 = u"kept";
  form.NextSentence(0);
  form.ToggleMedium(0);
  form.PreviousSentence(5);
  form.NextSentence(5);
  EXPECT_EQ(form.Text1, u"kept");
  EXPECT_EQ(form.Corps[0], u"bonsoir");
}

TEST_F(FormLettreTest, FlagsAndZonesRecompose) {
  form.ToggleMedium(0);
  EXPECT_FALSE(form.SubjectVisible);
  EXPECT_TRUE(Contains(form.Text1, u"Objet : En réponse"));
  form.ToggleOccasion(1);
  EXPECT_EQ(form.Check_candidature, (FlagPair{true, false}));
  EXPECT_TRUE(Contains(form.Text1, u"Objet : Candidature spontanée"));
  form.ToggleMedium(0);
  EXPECT_EQ(form.Check_Modele, (FlagPair{false, true}));
  EXPECT_TRUE(form.SubjectVisible);
  form.Prenom = u"MARIE";
  form.Corps[4] = u"né(e)";
  form.LeavePrenom();
  EXPECT_EQ(form.Prenom, u"Marie");
  form.LeaveEmail();
  EXPECT_TRUE(Contains(form.Text1, u"née"));
  form.Text1 = u"typed by hand";
  form.ComposeAnew();
  EXPECT_TRUE(form.Text1.ends_with(u"née\r\n"));

  std::filesystem::path opened;
  form.OpenPropositions();
  form.openDocument = [&](const auto& file) { opened = file; };
  form.OpenPropositions();
  EXPECT_EQ(opened.filename(), "propositions.txt");
}

TEST_F(FormLettreTest, LoadingKeepsWhatTheFileLacksAndSavesNothing) {
  form.ChargerFichierLettre("Lettres/absent.dat");
  EXPECT_EQ(dialogs.told, std::vector<Text>{u"fichier non accessible"});

  form.Nom = u"Durand";
  form.ChargerFichierLettre(Write("Lettres/x.dat", u"Text1=a<N>b\r\n"));
  EXPECT_EQ(form.Text1, u"a\r\nb");
  EXPECT_EQ(form.Nom, u"Durand");
  EXPECT_TRUE(form.SubjectVisible);
  EXPECT_EQ(shell.calls, std::vector<Text>{u"Show FormLettre"});
  form.SaveIfChanged();
  EXPECT_EQ(form.NomLettre, u"") << "the text is the one of the file";

  form.ChargerFichierLettre(Write("Lettres/y.dat", u"0:Check_Modele=1\r\n1:Check_Modele=0\r\n"));
  EXPECT_EQ(form.Check_Modele, (FlagPair{true, false}));
  EXPECT_FALSE(form.SubjectVisible);
}

TEST_F(FormLettreTest, TheTimerSavesAChangedLetterWithASurname) {
  const std::filesystem::path file = "Lettres/ Durand (ER).dat";
  form.Text1 = u"a";
  form.SaveIfChanged();
  EXPECT_EQ(form.NomLettre, u"") << "no surname, no save";
  form.Nom = u"Durand";
  form.SaveIfChanged();
  EXPECT_TRUE(Contains(Bytes(file), u"Text1=a\r\n"));
  EXPECT_EQ(principale.ImageMenu[5].toolTip, u" Durand (ER).dat");

  form.Tel = u"04";
  form.SaveIfChanged();
  EXPECT_FALSE(Contains(Bytes(file), u"Tel=04")) << "the letter itself has not changed";
  form.Text1 = u"b";
  form.SaveIfChanged();
  EXPECT_TRUE(Contains(Bytes(file), u"Tel=04"));

  form.NomLettre = u"a/b";
  form.Text1 = u"c";
  form.SaveIfChanged();
  EXPECT_TRUE(form.saveFailed);

  form.Charger();
  EXPECT_EQ(form.NomLettre + form.Nom + form.Text1, u"") << "a form loaded again has forgotten its model";
  EXPECT_TRUE(dialogs.told.empty());
}

}  // namespace
}  // namespace talvor
