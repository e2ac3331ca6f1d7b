#include "cv/cv_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "base/line_file.h"
#include "tests/cv/fakes.h"
#include "tests/fakes/scratch_folder.h"
#include "workspace/document_keeping.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

class CvFiles : public testing::Test {
 protected:
  CvFiles() { fs::create_directories("CV"); }

  CvDocument Read(std::string_view bytes) {
    EXPECT_FALSE(WriteBytes("CV/essai.dat", bytes).Failed());
    CvDocument cv;
    EXPECT_TRUE(ReadCv("CV/essai.dat", cv));
    return cv;
  }

  bool Save(CvDocument& cv) { return SauvegarderCV(cv, dialogs_, principale_); }

  ScratchFolder scratch_;
  FakeShell shell_;
  FakeDialogs dialogs_;
  Principale principale_{shell_};
};

bool SameKeys(const CvDocument& a, const CvDocument& b) {
  for (std::size_t i = 0; i < FirstUnreadField; ++i)
    if (a.*(CvFields[i].text) != b.*(CvFields[i].text)) return false;
  for (const auto& group : CheckGroups)
    if (a.*(group.values) != b.*(group.values)) return false;
  return true;
}

CvDocument RandomDocument(std::mt19937& random) {
  static const std::vector<Text> pieces{u"a",    u"é",  u" ",  u"=", u":",    u"<N",   u"N>",
                                        u"\r\n", u"\n", u"€",  u"#", u"P03",  u"œ",    u"0:LangueProf=1",
                                        u"Łódź", u"😃", u"漢", u"&", u"<br>", u"\t\"", u"\u00A0"};
  CvDocument cv;
  for (const auto& field : CvFields) {
    Text& text = cv.*(field.text);
    text.clear();
    for (auto count = random() % 12; count > 0; --count) text += pieces[random() % pieces.size()];
    text = ReplaceAll(text, u"<N>", u"<n>");
  }
  for (const auto& group : CheckGroups)
    for (std::size_t i = 0; i < group.size; ++i) (cv.*(group.values))[i] = random() % 2 == 1;
  return cv;
}

TEST_F(CvFiles, RandomDocumentsComeBackWholeAndWriteTheSameBytesAgain) {
  std::mt19937 random{20070312};
  for (int round = 0; round < 200; ++round) {
    const CvDocument cv = RandomDocument(random);
    const std::string bytes = ToCodePage(CvFileText(cv));
    CvDocument back = Read(bytes);
    ASSERT_TRUE(SameKeys(cv, back)) << bytes;
    for (std::size_t i = FirstUnreadField; i < CvFields.size(); ++i)
      back.*(CvFields[i].text) = cv.*(CvFields[i].text);
    ASSERT_EQ(ToCodePage(CvFileText(back)), bytes);
  }
}

TEST(CvFileText, StandsInTheOrderOfTheForm) {
  CvDocument cv;
  cv.Etudes = u"2001 : Paris\r\nMaîtrise = oui";
  cv.LangueProf[8] = true;
  const Text text = CvFileText(cv);
  EXPECT_TRUE(text.starts_with(u"LangueCV=0\r\nIdentite=\r\nLangues=\r\nNom=\r\nAdresse1=\r\nPrénom=\r\n"));
  EXPECT_TRUE(Contains(text, u"\r\nEtudes=2001 : Paris<N>Maîtrise = oui\r\n"));
  EXPECT_TRUE(Contains(text,
                       u"Competences=\r\n8:LangueCourant=0\r\n8:LangueProf=1\r\n8:LangueScolaire=0\r\n"
                       u"7:LangueCourant=0\r\n"));
  EXPECT_TRUE(Contains(text,
                       u"0:LangueScolaire=0\r\nDateNaissance=\r\nLieuNaissance=\r\nAge=\r\n"
                       u"8:LangueBilingue=0\r\n7:LangueBilingue=0\r\n"));
  EXPECT_TRUE(Contains(text,
                       u"0:LangueBilingue=0\r\nNbEnfants=\r\nSituation=\r\nNomCV=\r\n"
                       u"NomModele=Basic\r\nPolice=Arial\r\n"
                       u"1:CheckDisposition=0\r\n0:CheckDisposition=0\r\n"
                       u"3:CheckParagraphe=0\r\n2:CheckParagraphe=1\r\n1:CheckParagraphe=0\r\n"
                       u"0:CheckParagraphe=1\r\nModèle=Basic.htm\r\nSouligné=0\r\nGras=1\r\n"
                       u"Indentation=1\r\nSaut=0\r\nCouleur=#FF6600\r\nCouleurClaire=#FFE6D5\r\n"));
}

TEST_F(CvFiles, LinesThatMeanNothingAreSkippedWithoutAWord) {
  for (const char* line : {"",
                           "\r\n\r\n",
                           "Nom",
                           "2Nom=x",
                           "=x",
                           "nom=x",
                           "9:LangueProf=1",
                           "2:CheckDisposition=1",
                           "4:CheckParagraphe=1",
                           "0:Inconnu=1",
                           "0:LangueProf=oui",
                           "0:LangueProf=2",
                           "0:LangueProf",
                           "0:LangueProf=",
                           "1.5:LangueProf=1",
                           "99999999999999999999999:LangueProf=1",
                           "0:Nom=x",
                           "ListeSituations=x",
                           "FramePolice=x",
                           "LangueProf=1",
                           "0:langueprof=1",
                           " Nom=x",
                           "\xFF\xFE\0\x01"})
    EXPECT_TRUE(SameKeys(Read(line), CvDocument{})) << line;
}

TEST_F(CvFiles, ReadingKeepsWhatTheFileLacksAndTrimsNothing) {
  const CvDocument cv =
      Read("Nom= Du=pont : \r\nEtudes=a<N>b\r\n0:LangueCourant=1\r\n0:CheckParagraphe=0\r\n");
  EXPECT_EQ(cv.Nom, u" Du=pont : ");
  EXPECT_EQ(cv.Etudes, u"a\r\nb");
  EXPECT_TRUE(cv.LangueCourant[0]);
  EXPECT_FALSE(cv.CheckParagraphe[0]);
  EXPECT_EQ(cv.Gras, u"1") << "the mirror is a key of its own";
  EXPECT_EQ(cv.Police, u"Arial");

  CvDocument kept = cv;
  EXPECT_FALSE(ReadCv("CV/absent.dat", kept));
  EXPECT_TRUE(SameKeys(kept, cv));
}

TEST_F(CvFiles, ALoneReturnSplitsItsLineAndALiteralMarkBecomesABreak) {
  CvDocument cv;
  cv.Divers = u"a\rVille=Lyon";
  cv.Objectifs = u"<N>";
  const CvDocument back = Read(ToCodePage(CvFileText(cv)));
  EXPECT_EQ(back.Divers, u"a");
  EXPECT_EQ(back.Ville, u"Lyon");
  EXPECT_EQ(back.Objectifs, u"\r\n");
}

TEST_F(CvFiles, HugeAndBinaryFilesAreReadInNoTime) {
  std::string lines;
  while (lines.size() < 20'000'000) lines += "1:LangueProf=1\r\nEtudes=x<N>y\r\nbruit\r\n8:\r\n";
  EXPECT_EQ(Read(lines).Etudes, u"x\r\ny");
  const std::string longLine = "Etudes=" + std::string(5'000'000, '=') + "\r\n" + std::string(5'000'000, '7');
  EXPECT_EQ(Read(longLine).Etudes.size(), 5'000'000u);
  std::mt19937 random{4};
  std::string noise(1'000'000, '\0');
  for (char& c : noise) c = static_cast<char>(random());
  Read(noise);
}

TEST_F(CvFiles, AFileWithBareLineFeedsIsReadLineByLine) {
  const CvDocument cv = Read("Nom=Dupont\nVille=Lyon\n");
  EXPECT_EQ(cv.Nom, u"Dupont");
  EXPECT_EQ(cv.Ville, u"Lyon");
}

TEST_F(CvFiles, WithoutAnyNameNothingIsWritten) {
  CvDocument cv;
  cv.Etudes = u"Bac";
  EXPECT_FALSE(Save(cv));
  EXPECT_EQ(dialogs_.told, std::vector<Text>{u"Vous devez donner un nom au CV avant de l'enregistrer"});
  EXPECT_TRUE(fs::is_empty("CV"));
}

struct Naming {
  TextView nomCV, nom, prenom;
  const char* file;
  friend void PrintTo(const Naming& row, std::ostream* out) { *out << row.file; }
};

class CvNames : public CvFiles, public testing::WithParamInterface<Naming> {};

TEST_P(CvNames, AreFreeOfAccentsAndStayInTheFolder) {
  CvDocument cv;
  cv.NomCV = GetParam().nomCV;
  cv.Nom = GetParam().nom;
  cv.Prenom = GetParam().prenom;
  EXPECT_TRUE(Save(cv));
  EXPECT_TRUE(fs::exists(GetParam().file));
}

INSTANTIATE_TEST_SUITE_P(SauvegarderCV, CvNames,
                         testing::Values(Naming{u"Jean-Pierre d'Arc", u"", u"", "CV/Jean Pierre D Arc.dat"},
                                         Naming{u"", u"ÉTIENNE", u"Zoé", "CV/Etienne Zoe.dat"},
                                         Naming{u"", u"", u"Zoé", "CV/Zoe.dat"},
                                         Naming{u"/evasion", u"", u"", "CV/evasion.dat"},
                                         Naming{u"../a.b", u"", u"", "CV/a B.dat"},
                                         Naming{u"", u"漢", u"", "CV/.dat"}));

TEST_F(CvFiles, SavingListsTheCvInTheMenuAndLeavesTheMirrorsAlone) {
  CvDocument cv;
  cv.Nom = u"Dupont";
  EXPECT_TRUE(Save(cv));
  EXPECT_EQ(principale_.ImageMenu[0].toolTip, u"Dupont.dat");
  EXPECT_EQ(principale_.Nom, u"");
  EXPECT_TRUE(dialogs_.told.empty());
}

TEST_F(CvFiles, FiveVersionsAreKeptTheNewestFirstAndNoneTwice) {
  CvDocument cv;
  cv.NomCV = u"Essai";
  const auto later = [] {  // the kept versions have become old
    for (const auto& kept : fs::directory_iterator{"Sauvegardes/CV"})
      fs::last_write_time(kept.path(), kept.last_write_time() - KeptVersionsApart);
  };
  for (int version = 0; version < 8; ++version) {
    cv.Age = NumberText(version);
    ASSERT_TRUE(Save(cv));
    later();
  }
  ASSERT_TRUE(Save(cv)) << "version 7 joins the kept ones";
  ASSERT_TRUE(Save(cv)) << "and does not join them twice";
  for (int age = 1; age <= KeptVersions; ++age) {
    CvDocument kept;
    ASSERT_TRUE(ReadCv(fs::path{"Sauvegardes/CV"} / ("Essai." + std::to_string(age) + ".dat"), kept));
    EXPECT_EQ(kept.Age, NumberText(8 - age));
  }
  EXPECT_EQ(std::distance(fs::directory_iterator{"Sauvegardes/CV"}, {}), KeptVersions);
}

TEST_F(CvFiles, ARunOfSavesDoesNotPushOutWhatStoodBeforeIt) {
  CvDocument cv;
  cv.NomCV = u"Essai";
  for (int version = 0; version < 20; ++version) {
    cv.Age = NumberText(version);
    ASSERT_TRUE(Save(cv));
  }
  for (const auto& [age, version] : {std::pair{1, 18}, std::pair{2, 0}}) {
    CvDocument kept;
    ASSERT_TRUE(ReadCv(fs::path{"Sauvegardes/CV"} / ("Essai." + std::to_string(age) + ".dat"), kept));
    EXPECT_EQ(kept.Age, NumberText(version));
  }
  EXPECT_EQ(std::distance(fs::directory_iterator{"Sauvegardes/CV"}, {}), 2);
}

TEST_F(CvFiles, AnotherCaseOfTheNameIsTheSameFile) {
  ASSERT_FALSE(WriteBytes("CV/DUPONT MARIE.dat", "Nom=ancien\r\n").Failed());
  CvDocument cv;
  cv.NomCV = u"dupont marie";
  EXPECT_TRUE(Save(cv));
  EXPECT_FALSE(fs::exists("CV/DUPONT MARIE.dat"));
  EXPECT_TRUE(fs::exists("CV/Dupont Marie.dat"));
  EXPECT_EQ(ReadBytes("Sauvegardes/CV/DUPONT MARIE.1.dat"), "Nom=ancien\r\n");
}

TEST_F(CvFiles, AFailedSaveIsToldAndLosesNothing) {
  CvDocument cv;
  cv.NomCV = u"a/b";  // no such folder
  EXPECT_FALSE(Save(cv));
  EXPECT_EQ(dialogs_.told.back(), u"Pb lors de l'enregistrement du CV : A/b");
  EXPECT_EQ(principale_.ImageMenu[0].picture, SlotPicture::None) << "the menu is not rebuilt";

  ASSERT_FALSE(WriteBytes("CV/Essai.dat", "Nom=ancien\r\n").Failed());
  std::filesystem::remove_all("Sauvegardes");
  ASSERT_FALSE(WriteBytes("Sauvegardes", "a file where the folder should be").Failed());
  cv.NomCV = u"Essai";
  EXPECT_FALSE(Save(cv));
  EXPECT_EQ(ReadBytes("CV/Essai.dat"), "Nom=ancien\r\n") << "what cannot be kept is not deleted";
}

}  // namespace
}  // namespace talvor
