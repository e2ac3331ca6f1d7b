#include "workspace/principale.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/fakes/fakes.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor {
namespace {

class PrincipaleTest : public testing::Test {
 protected:
  void Cvs(std::initializer_list<const char*> names) { Fill("CV", names); }
  void Letters(std::initializer_list<const char*> names) { Fill("Lettres", names); }

  // The visible slots as lines «number: picture tooltip».
  std::string Menu() {
    principale.InitMenu();
    static const std::array<const char*, 8> names{
        "None",        "ImageCV",  "CVWord",           "CVPDF",
        "ImageLettre", "ImageNew", "ImageCandidature", "ImageCandidatureSel"};
    std::string lines;
    for (std::size_t i = 0; i < principale.ImageMenu.size(); ++i) {
      const MenuSlot& slot = principale.ImageMenu[i];
      if (slot.visible)
        lines += std::to_string(i) + ": " + names[static_cast<std::size_t>(slot.picture)] + " " +
                 ToUtf8(slot.toolTip) + "\n";
    }
    return lines;
  }

  ScratchFolder scratch;
  FakeShell shell;
  Principale principale{shell};

 private:
  static void Fill(const char* folder, std::initializer_list<const char*> names) {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directory(folder);
    for (const char* name : names) std::ofstream{std::filesystem::path{folder} / name} << "Nom=Durand\r\n";
  }
};

TEST_F(PrincipaleTest, MissingFoldersGiveTheFreeSlots) { EXPECT_EQ(Menu(), "0: ImageNew \n5: ImageNew \n"); }

TEST_F(PrincipaleTest, PicturesFollowTheNameAnywhereWordFirst) {
  Cvs({"b.PDF", "A.dat", "x.dat.doc", "y.pdf.docx.dat", "z.pdf"});
  EXPECT_EQ(
      Menu(),
      "0: ImageCV A.dat\n1: ImageCV b.PDF\n2: CVWord x.dat.doc\n3: CVWord y.pdf.docx.dat\n4: CVPDF z.pdf\n"
      "5: ImageNew \n");
}

TEST_F(PrincipaleTest, FourCvsLeaveAFreeSlotAndFourLettersDoNot) {
  Cvs({"a.dat", "b.dat", "c.dat", "d.dat"});
  Letters({"a.dat", "b.dat", "c.dat", "d.dat"});
  EXPECT_EQ(Menu(),
            "0: ImageCV a.dat\n1: ImageCV b.dat\n2: ImageCV c.dat\n3: ImageCV d.dat\n4: ImageNew \n"
            "5: ImageLettre a.dat\n6: ImageLettre b.dat\n7: ImageLettre c.dat\n8: ImageLettre d.dat\n");
  Letters({"a.dat", "b.dat", "c.dat"});
  EXPECT_NE(Menu().find("8: ImageNew \n"), std::string::npos);
}

TEST_F(PrincipaleTest, ASixthLetterTakesSlotTenForTheRestOfTheRun) {
  Cvs({"a.dat", "b.dat", "c.dat", "d.dat", "e.dat", "f.dat"});
  Letters({"a.dat", "b.dat", "c.dat", "d.dat", "e.dat", "f.dat", "g.dat"});
  const std::string menu = Menu();
  EXPECT_NE(menu.find("4: ImageCV e.dat\n5: "), std::string::npos) << "the sixth CV is out of reach";
  EXPECT_NE(menu.find("10: ImageLettre f.dat\n"), std::string::npos);
  Letters({});
  EXPECT_NE(Menu().find("10: ImageLettre f.dat\n"), std::string::npos) << "slot 10 is never reset";
}

TEST_F(PrincipaleTest, AHiddenSlotKeepsItsPictureAndLosesItsName) {
  Cvs({"a.doc", "b.pdf"});
  Menu();
  Cvs({});
  Menu();
  EXPECT_EQ(principale.ImageMenu[1].picture, SlotPicture::CVPDF);
  EXPECT_EQ(principale.ImageMenu[1].toolTip, u"");
  EXPECT_FALSE(principale.ImageMenu[1].visible);
}

TEST_F(PrincipaleTest, IdentityComesFromTheKeysOfTheFile) {
  std::ofstream{"a.dat", std::ios::binary}
      << "Nom=Durand\r\nPr\xE9nom=Ang\xE8le\r\nAdresse1=1, rue<N>B=2\r\n0:CP=1\r\nligne\r\n\r\n"
         "nom=autre\r\nNbCand=99\r\n=\r\nVille=\xA0&#321;\r\n";
  principale.ChargerInfosCV("a.dat");
  EXPECT_EQ(principale.Nom, u"Durand");
  EXPECT_EQ(principale.Prenom, u"Angèle");
  EXPECT_EQ(principale.Adresse1, u"1, rue\r\nB=2");
  EXPECT_EQ(principale.CP, u"");
  EXPECT_EQ(principale.Ville, u"\u00A0Ł");
  EXPECT_EQ(principale.NbCand, u"");
  principale.ChargerInfosCV("absent.dat");
  EXPECT_EQ(principale.Nom, u"Durand");
}

TEST_F(PrincipaleTest, TheHintTakesOneSecondAndThenShowsItsMessage) {
  principale.AfficherGuide(u"Bonjour");
  EXPECT_EQ(principale.InfoGuide, u"Bonjour");
  EXPECT_EQ(shell.waited, 1000);
  EXPECT_EQ(shell.pumps, 10);
  EXPECT_EQ(shell.calls, (std::vector<Text>{u"Load Guide", u"Unload Guide"}));
}

TEST_F(PrincipaleTest, TheNewerFolderLayoutIsToldByCase) {
  FakeEnvironment environment;
  EXPECT_FALSE(EstProgramData(environment));
  environment.values[u"ALLUSERSPROFILE"] = u"C:\\PROGRAMDATA";
  EXPECT_FALSE(EstProgramData(environment));
  environment.values[u"ALLUSERSPROFILE"] = u"C:\\ProgramData";
  EXPECT_TRUE(EstProgramData(environment));
}

}  // namespace
}  // namespace talvor
