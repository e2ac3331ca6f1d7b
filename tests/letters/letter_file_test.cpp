#include <filesystem>
#include <optional>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "tests/letters/letters_fixture.h"

namespace talvor {
namespace {

using LetterFileTest = LettersTest;

bool operator==(const LetterModel& a, const LetterModel& b) {
  for (const auto& field : LetterFields)
    if (a.*(field.text) != b.*(field.text)) return false;
  return a.Corps == b.Corps && a.Check_Modele == b.Check_Modele && a.Check_candidature == b.Check_candidature;
}

LetterModel Read(std::initializer_list<TextView> lines) {
  LetterModel model;
  for (const TextView line : lines) ApplyLetterLine(model, line);
  return model;
}

TEST(LetterFileText, StandsInTheOrderOfTheFormWithEverySentenceTwice) {
  LetterModel model;
  model.Text1 = u"\r\n\r\nMadame,\r\n";
  model.Nom = u"Dupont";
  model.Corps[1] = u"a\r\nb";
  SetFlag(model.Check_Modele, Mail, true);
  EXPECT_EQ(LetterFileText(model),
            u"Objet=\r\nText1=<N><N>Madame,<N>\r\nNomLettre=\r\nPoste=\r\nLastSociete=\r\n"
            u"0:Check_Modele=0\r\n1:Check_Modele=1\r\n0:Check_candidature=0\r\n1:Check_candidature=0\r\n"
            u"Competences=\r\nDomaine=\r\nFonction=\r\n"
            u"Corps=\r\n0:Corps=\r\nCorps=a<N>b\r\n1:Corps=a\r\nb\r\nCorps=\r\n2:Corps=\r\n"
            u"Corps=\r\n3:Corps=\r\nCorps=\r\n4:Corps=\r\n"
            u"Email=\r\nMob=\r\nTel=\r\nPays=\r\nVille=\r\nCP=\r\nAdresse2=\r\nPrénom=\r\nAdresse1=\r\n"
            u"Nom=Dupont\r\nCadreObjet=Objet\r\nListeCV=Liste des CV\r\n");
}

TEST(LetterFileText, OfRandomModelsGivesThemBackWhole) {
  static const std::vector<Text> pieces{u"a",  u"é",   u" ", u"=",  u":",        u"<N",
                                        u"N>", u"\n",  u"€", u"œ",  u"#Ville#",  u"😃",
                                        u"漢", u"(e)", u"&", u"\t", u"1:Corps=x"};
  std::mt19937 random{20260301};
  const auto text = [&](bool lineEnds) {
    Text result;
    for (auto count = random() % 12; count > 0; --count)
      result += lineEnds && random() % 4 == 0 ? Text{LineEnd} : pieces[random() % pieces.size()];
    return ReplaceAll(result, u"<N>", u"<n>");
  };
  for (int round = 0; round < 200; ++round) {
    LetterModel model;
    for (const auto& field : LetterFields) model.*(field.text) = text(true);
    for (Text& sentence : model.Corps) sentence = text(false);
    SetFlag(model.Check_Modele, random() % 2, true);
    SetFlag(model.Check_candidature, random() % 2, true);
    LetterModel back;
    for (const TextView line : SplitLines(FromCodePage(ToCodePage(LetterFileText(model)))))
      ApplyLetterLine(back, line);
    ASSERT_TRUE(model == back) << ToUtf8(LetterFileText(model));
  }
}

TEST(LetterLines, ThatNameNothingAreSkipped) {
  for (const TextView line :
       {u"", u"Nom", u"1Nom=x", u"=x", u"nom=x", u"Corps=x", u"Check_Modele=1", u"0:Nom=x", u"5:Corps=x",
        u"2:Check_Modele=1", u"0:Check_Modele=oui", u"0:Check_Modele", u"0:Corps", u"1.5:Corps=x",
        u"999999999999999999999:Corps=x", u"CadreObjet=x", u"ListeCV=x", u"Inconnu=x", u"0:NomCV=x"})
    EXPECT_TRUE(Read({line}) == LetterModel{}) << ToUtf8(line);
}

TEST(LetterLines, AFlagWritesItsPairLineByLine) {
  EXPECT_EQ(Read({u"1:Check_Modele=1"}).Check_Modele, (FlagPair{false, true}));
  EXPECT_EQ(Read({u"1:Check_Modele=0"}).Check_Modele, (FlagPair{true, false}));
  EXPECT_EQ(Read({u"1:Check_Modele=1", u"0:Check_Modele=1"}).Check_Modele, (FlagPair{true, false}));
}

TEST_F(LetterFileTest, ASentenceIsCutAtItsLineEndAndTheRestIsALineOfItsOwn) {
  LetterModel model, back;
  model.Corps[0] = u"a<N>=:\r\nrien\r\n\r\nFonction=Juriste\r\n1:Corps=b";
  ASSERT_TRUE(ReadLetter(Write("Lettres/x.dat", LetterFileText(model)), back));
  EXPECT_EQ(back.Corps[0], u"a<N>=:");
  EXPECT_EQ(back.Fonction, u"Juriste");
  EXPECT_EQ(back.Corps[1], u"") << "its own line comes behind";
}

TEST_F(LetterFileTest, EmptyBinaryAndHugeFilesAreRead) {
  LetterModel model;
  model.Nom = u"Durand";
  for (const std::string& bytes : {std::string{}, std::string{"\x00\xFF\r\x81=\r\n9:=", 11},
                                   std::string(5'000'000, '1'), "Objet" + std::string(5'000'000, ':')}) {
    EXPECT_FALSE(WriteBytes("Lettres/x.dat", bytes).Failed());
    EXPECT_TRUE(ReadLetter("Lettres/x.dat", model));
    EXPECT_EQ(model.Nom, u"Durand");
  }
  EXPECT_FALSE(ReadLetter("Lettres", model)) << "a folder";
}

struct Naming {
  const char* reason;
  Text nomLettre, prenom, nom;
  std::optional<std::size_t> modele, candidature;  // the flag that is set
  const char* file;
  friend void PrintTo(const Naming& row, std::ostream* out) { *out << row.reason; }
};

class SavedLetter : public LettersTest, public testing::WithParamInterface<Naming> {};

TEST_P(SavedLetter, StandsUnderItsName) {
  const Naming& row = GetParam();
  LetterModel model;
  model.NomLettre = row.nomLettre;
  model.Prenom = row.prenom;
  model.Nom = row.nom;
  if (row.modele) SetFlag(model.Check_Modele, *row.modele, true);
  if (row.candidature) SetFlag(model.Check_candidature, *row.candidature, true);
  EXPECT_TRUE(EnregistrerLettre(model, dialogs, principale));
  EXPECT_EQ(Bytes(std::filesystem::path{"Lettres"} / row.file), LetterFileText(model));
  EXPECT_EQ(principale.ImageMenu[5].toolTip.empty(), row.file[0] == '.') << "the menu lists the letter";
  const bool nameless = row.nomLettre.empty() && row.prenom.empty() && row.nom.empty();
  EXPECT_EQ(dialogs.told,
            nameless ? std::vector<Text>{u"Vous devez donner un nom au modèle avant de l'enregistrer"}
                     : std::vector<Text>{});
}

INSTANTIATE_TEST_SUITE_P(
    Names, SavedLetter,
    testing::Values(Naming{"printed, spontaneous", u"", u"Marie", u"Dupont", 0, 0, "Marie Dupont (IS).dat"},
                    Naming{"printed, answer", u"", u"jean-rené", u"d'ARC", 0, 1, "Jean Rene D Arc (IR).dat"},
                    Naming{"mail, spontaneous", u"", u"A", u"B", 1, 0, "A B (ES).dat"},
                    Naming{"mail, answer", u"", u"A", u"B", 1, 1, "A B (ER).dat"},
                    Naming{"no surname: its blank stays", u"", u"Marie", u"", 0, 0, "Marie  (IS).dat"},
                    Naming{"a name keeps its suffix", u"x (IS)", u"A", u"B", 1, 1, "x (IS).dat"},
                    Naming{"no kind, no name", u"", u"A", u"B", {}, 0, ".dat"},
                    Naming{"no name at all is told and saved", u"", u"", u"", 0, 0, ".dat"}));

TEST_F(LetterFileTest, ASaveKeepsTheOldVersionAndNeverLeavesTheFolder) {
  LetterModel model;
  model.NomLettre = u"x";
  Write("Lettres/X.dat", u"old");
  EXPECT_TRUE(EnregistrerLettre(model, dialogs, principale));
  EXPECT_EQ(Bytes("Sauvegardes/Lettres/X.1.dat"), u"old");
  EXPECT_EQ(Bytes("Lettres/X.dat"), u"(missing)");

  for (const Text& name : {Text{u"../y"}, Text{u"a/b"}, Text{u"y\0z", 3}}) {
    model.NomLettre = name;
    EXPECT_FALSE(EnregistrerLettre(model, dialogs, principale));
  }
  EXPECT_FALSE(std::filesystem::exists("y.dat"));
  EXPECT_EQ(principale.ListedFiles.Count(), 1u);
}

}  // namespace
}  // namespace talvor
