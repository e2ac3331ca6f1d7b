#include "app/file_library.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/candidature_menus.h"
#include "app/file_error.h"
#include "app/menu_trees.h"
#include "base/line_file.h"
#include "tests/fakes/fakes.h"
#include "tests/fakes/file_fakes.h"
#include "tests/fakes/scratch_folder.h"
#include "workspace/systeme.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

class FileLibraryTest : public testing::Test {
 protected:
  FileLibraryTest() {
    for (const char* folder : {"CV", "Lettres", "Modeles", "Documents", "Mes Documents"})
      fs::create_directory(folder);
    environment.values[u"userprofile"] = environment.values[u"homepath"] = *TextOf(scratch.Path());
    library.ways.ouvrirCV = [this](TextView name) { done = u"cv " + Text{name}; };
    library.ways.ouvrirLettre = [this](TextView name) { done = u"lettre " + Text{name}; };
    library.ways.nouvelleLettre = [this] { done = u"nouvelle lettre"; };
    library.ways.viderInformation = [this] { ++cleared; };
  }

  static void Write(const fs::path& file, std::string_view bytes) {
    std::ofstream{file, std::ios::binary} << bytes;
  }
  static std::string Bytes(const fs::path& file) { return ReadBytes(file).value_or("(none)"); }
  // The names in a folder, without what is kept.
  static std::set<std::string> Names(const char* folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator{folder}) names.insert(entry.path().filename().string());
    return names;
  }
  // Fills the menu anew and clicks on the slot.
  void Click(std::size_t slot) {
    principale.InitMenu();
    menus.enabled.clear();
    library.OpenSlotMenu(slot);
  }
  void Rename(const Text& chosen) {
    pickers.file = fs::current_path() / PathOf(chosen);
    library.Renommer();
  }

  ScratchFolder scratch;
  FakeEnvironment environment;
  FakeDialogs dialogs;
  FakeShell shell;
  FakePickers pickers;
  FakeDocuments documents;
  FakeMenus menus;
  Principale principale{shell};
  FileLibrary library{{principale, shell, dialogs, pickers, documents, menus, environment}};
  Text done;
  int cleared = 0;
};

// The items that a click on a slot leaves enabled, disabled and untouched, as letters E, D and -.
struct ClickCase {
  std::size_t slot;
  std::vector<std::string> files;
  bool editorVisible;
  std::string items;
};

class SlotClick : public FileLibraryTest, public testing::WithParamInterface<ClickCase> {};

TEST_P(SlotClick, EnablesWhatAppliesToTheSlot) {
  const ClickCase& expected = GetParam();
  for (const auto& file : expected.files) Write(file, "x");
  if (expected.editorVisible) shell.visible.insert(u"FormRédigerCV");
  Click(expected.slot);
  EXPECT_EQ(principale.IndexMenu, static_cast<int>(expected.slot));
  std::string items;
  for (const MenuTree& tree : MenuTrees())
    for (const MenuItem& item : tree.items)
      if (tree.name == menus.opened && !item.caption.empty()) {
        const auto found = menus.enabled.find(Text{item.name});
        items += found == menus.enabled.end() ? '-' : found->second ? 'E' : 'D';
      }
  EXPECT_EQ(items, expected.items);
}

// In the menu's order: new, attach, open, delete, rename, duplicate, convert, Word, print, the two sends.
INSTANTIATE_TEST_SUITE_P(
    Slots, SlotClick,
    testing::Values(
        ClickCase{0, {}, false, "EEDDDDDDDDD"}, ClickCase{0, {"CV/a.dat"}, false, "DDEEEEDDD--"},
        ClickCase{0, {"CV/a.dat"}, true, "DDEEEEEDE--"}, ClickCase{0, {"CV/a.doc"}, true, "DDEEEEDDD--"},
        ClickCase{0, {"CV/a.dat.pdf"}, true, "DDEEEEEDE--"},
        ClickCase{0, {"CV/a.dat", "Mes Documents/a.doc"}, false, "DDEEEEDED--"},
        ClickCase{0, {"CV/a.dat", "Documents/a.doc"}, false, "DDEEEEDDD--"},
        ClickCase{1, {"CV/a.dat", "Mes Documents/x"}, true, "EEDDDDDDDDD"},
        // The list under the limit is that of the letters: six CVs still duplicate, five letters forbid it.
        ClickCase{0, {"CV/a", "CV/b", "CV/c", "CV/d", "CV/e", "CV/f"}, false, "DDEEEEDDD--"},
        ClickCase{0,
                  {"CV/a.dat", "Lettres/1", "Lettres/2", "Lettres/3", "Lettres/4", "Lettres/5"},
                  false,
                  "DDEEEDDDD--"},
        ClickCase{5, {}, false, "EDDDD"}, ClickCase{5, {"Lettres/a.dat"}, false, "DEEEE"},
        ClickCase{10, {}, false, "-----"}));

TEST_F(FileLibraryTest, TheNewerLayoutLooksForTheWordVersionInDocuments) {
  environment.values[u"ALLUSERSPROFILE"] = u"C:\\ProgramData";
  Write("CV/a.dat", "x");
  Write("Documents/a.doc", "x");
  Click(0);
  EXPECT_TRUE(menus.enabled[u"MenuOuvrirWord"]);
  library.MenuOuvrirWord();
  EXPECT_EQ(documents.opened, std::vector<Text>{*TextOf(scratch.Path() / "Documents" / "a.doc")});
  fs::remove("Documents/a.doc");
  library.MenuOuvrirWord();
  EXPECT_EQ(documents.opened.size(), 1u);
  EXPECT_EQ(dialogs.told.size(), 1u) << "a version that has gone meanwhile is told";
}

TEST_F(FileLibraryTest, EveryItemOfTheMenusHasItsAction) {
  CandidatureMenus candidatures(principale, shell);
  const std::set<TextView> ofTheEditor{u"MenuImprimer", u"MenuPhoto", u"MenuLangues", u"MenuConvertirWord"};
  Write("CV/a.dat", "x");
  dialogs.answer = false;
  for (const MenuTree& tree : MenuTrees())
    for (const MenuItem& item : tree.items) {
      if (item.caption.empty() || ofTheEditor.contains(tree.name)) continue;
      Click(tree.name == u"MenuLettre" ? 5 : 0);
      if (tree.name == u"MenuLettre" && item.name == u"MenuDuppliquerLettre") continue;  // needs a letter
      EXPECT_TRUE(library.Choose(item.name) || candidatures.Choose(item.name)) << ToUtf8(item.name);
    }
  EXPECT_FALSE(library.Choose(u"Tiret"));
}

TEST_F(FileLibraryTest, ADoubleClickOpensByTheSlotAndTheMenuByTheName) {
  Write("CV/a.doc", "x");
  Write("CV/b.dat.doc", "x");
  Write("Lettres/l.txt", "x");
  principale.InitMenu();
  library.OpenSlot(0);
  EXPECT_EQ(done, u"cv a.doc");
  library.MenuOuvrirCV();
  EXPECT_EQ(documents.opened, std::vector<Text>{*TextOf(scratch.Path() / "CV" / "a.doc")});
  Click(1);
  library.MenuOuvrirCV();
  EXPECT_EQ(done, u"cv b.dat.doc") << "the mark counts anywhere in the name";
  library.OpenSlot(5);
  EXPECT_EQ(done, u"lettre l.txt");
  library.OpenSlot(6);
  EXPECT_EQ(done, u"nouvelle lettre");
  library.OpenSlot(2);
  EXPECT_EQ(shell.calls.back(), u"Show FormRédigerCV");
  library.OpenSlot(10);
  EXPECT_EQ(shell.calls.back(), u"Show FormCand");
}

TEST_F(FileLibraryTest, AttachingCopiesTheFileAndKeepsTheOneItReplaces) {
  fs::create_directory("ailleurs");
  Write("ailleurs/Été 2026.v2.pdf", "neuf");
  pickers.file = fs::current_path() / "ailleurs/Été 2026.v2.pdf";
  Click(0);
  library.MenuRattacherCV();
  ASSERT_EQ(dialogs.told.size(), 1u) << "the first CV is better written";
  EXPECT_EQ(pickers.asked.folder, scratch.Path());
  EXPECT_EQ(Bytes("CV/Été 2026.v2.pdf"), "neuf");
  EXPECT_EQ(principale.ImageMenu[0].picture, SlotPicture::CVPDF);

  Write("ailleurs/Été 2026.v2.pdf", "plus neuf");
  Click(1);
  library.MenuRattacherCV();
  EXPECT_EQ(dialogs.told.size(), 1u);
  EXPECT_EQ(Bytes("CV/Été 2026.v2.pdf"), "plus neuf");
  EXPECT_EQ(Bytes("Sauvegardes/CV/Été 2026.v2.1.pdf"), "neuf");

  pickers.file.reset();
  library.MenuRattacherCV();
  EXPECT_EQ(Names("CV").size(), 1u);
  // Neither a folder nor a file that has gone is a CV, and the support has no part in it.
  for (const auto& [file, cause] :
       {std::pair{"ailleurs", "dossier"}, std::pair{"parti.doc", "n’existe pas"}}) {
    pickers.file = file;
    try {
      library.MenuRattacherCV();
      FAIL() << file;
    } catch (const FileError& failure) {
      EXPECT_NE(std::string(failure.what()).find(cause), std::string::npos) << failure.what();
    }
  }
}

TEST_F(FileLibraryTest, DuplicatesTakeAPrefixAndNoPhoto) {
  Write("CV/a.b.dat", "1");
  Write("Modeles/a.b.jpg", "photo");
  Click(0);
  library.MenuDupliquerCV();
  Write("CV/a.b.dat", "2");
  Click(1);
  ASSERT_EQ(principale.ImageMenu[0].toolTip, u"a.b.dat");
  Click(0);
  library.MenuDupliquerCV();
  EXPECT_EQ(Bytes("CV/Copie de a.b.dat"), "2");
  EXPECT_EQ(Bytes("Sauvegardes/CV/Copie de a.b.1.dat"), "1");
  EXPECT_EQ(Names("Modeles").size(), 1u);
  Write("Lettres/l.dat", "L");
  Click(5);
  library.MenuDuppliquerLettre();
  EXPECT_EQ(Bytes("Lettres/Copie de l.dat"), "L");
}

TEST_F(FileLibraryTest, ADeleteAsksKeepsACopyAndLeavesTheSideFiles) {
  Write("CV/a.dat", "A");
  Write("CV/a.doc", "D");
  Write("Modeles/a.jpg", "photo");
  Click(0);
  dialogs.answer = false;
  library.MenuSupprimerCV();
  EXPECT_EQ(dialogs.asked.back(), u"Confirmez-vous la suppression du CV : a.dat ?");
  EXPECT_EQ(Bytes("CV/a.dat"), "A");
  dialogs.answer = true;
  library.MenuSupprimerCV();
  EXPECT_EQ(Names("CV"), std::set<std::string>{"a.doc"});
  EXPECT_EQ(Bytes("Modeles/a.jpg"), "photo");
  EXPECT_EQ(Bytes("Sauvegardes/CV/a.1.dat"), "A");
  EXPECT_EQ(shell.calls, (std::vector<Text>{u"Unload FormRédigerCV", u"Show FormRédigerCV"}));
  EXPECT_EQ(principale.ImageMenu[0].toolTip, u"a.doc");

  Write("Lettres/l (ER).dat", "L");
  Click(5);
  shell.calls.clear();
  library.MenuSupprimerLettre();
  EXPECT_EQ(dialogs.asked.back(), u"Confirmez-vous la suppression du modèle de lettre l (ER).dat ?");
  EXPECT_EQ(shell.calls, (std::vector<Text>{u"Unload AssistantTexte", u"Load AssistantTexte"}));
  EXPECT_EQ(Bytes("Sauvegardes/Lettres/l (ER).1.dat"), "L");
  Write("Lettres/m.dat", "M");
  Click(5);
  shell.calls.clear();
  shell.visible.insert(u"FormLettre");
  library.MenuSupprimerLettre();
  EXPECT_TRUE(shell.calls.empty()) << "over an open letter the home panel stays away";
}

struct RenameCase {
  const char* old;
  const char16_t* chosen;  // under the folder CV
  const char* now;
  bool takesPhoto;
};

class Renaming : public FileLibraryTest, public testing::WithParamInterface<RenameCase> {};

TEST_P(Renaming, FollowsItsExtensionRules) {
  const RenameCase& expected = GetParam();
  const std::string old = expected.old;
  Write("CV/" + old, "x");
  const std::string photo = "Modeles/" + old.substr(0, old.size() - 4) + ".jpg";
  Write(photo, "photo");
  Click(0);
  Rename(u"CV/" + Text{expected.chosen});
  EXPECT_EQ(Names("CV"), std::set<std::string>{expected.now});
  EXPECT_EQ(fs::exists(photo), !expected.takesPhoto);
  EXPECT_EQ(Names("Modeles").size(), 1u);
  EXPECT_EQ(shell.calls, (std::vector<Text>{u"Unload FormRédigerCV", u"Load FormRédigerCV"}));
  EXPECT_EQ(principale.ImageMenu[0].toolTip, FromUtf8(expected.now));
  EXPECT_EQ(cleared, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Names, Renaming,
    testing::Values(RenameCase{"a.dat", u"b.dat", "b.dat", true}, RenameCase{"a.dat", u"b", "b.dat", true},
                    RenameCase{"a.docx", u"b", "b.docx", false},
                    RenameCase{"a.DocX", u"b.docx", "b.docx.DocX", false},
                    RenameCase{"a.rtf", u"b.rtf", "b.rtf.rtf", true},
                    RenameCase{"a.dat", u"x.datum.pdf", "xum.dat", true},
                    RenameCase{"a.dat", u"A", "A.dat", true},
                    RenameCase{"é à.dat", u"Ça c’est. l’été", "Ça c’est. l’été.dat", true}));

TEST_F(FileLibraryTest, ARenamingCanMoveTheFileAndADroppedDialogChangesNothing) {
  fs::create_directory("ailleurs");
  Write("CV/a.dat", "x");
  Click(0);
  library.Renommer();
  EXPECT_EQ(pickers.asked.folder, scratch.Path() / "CV");
  EXPECT_TRUE(shell.calls.empty());
  Rename(u"ailleurs/b");
  EXPECT_EQ(Bytes("ailleurs/b.dat"), "x");
  EXPECT_TRUE(Names("CV").empty());

  Write("Lettres/l.dat", "L");
  Click(5);
  pickers.file = fs::current_path() / "Lettres/m.dat";
  library.RenommerLettre();
  EXPECT_EQ(Names("Lettres"), std::set<std::string>{"m.dat.dat"}) << "no extension goes from a letter's name";
}

TEST_F(FileLibraryTest, NoRenamingHidesADocument) {
  Write("CV/a.dat", "a");
  Click(0);
  Rename(u"CV/.a");
  EXPECT_EQ(Names("CV"), std::set<std::string>{"a.dat"});
  EXPECT_TRUE(shell.calls.empty());
  ASSERT_EQ(dialogs.told.size(), 1u);
  EXPECT_TRUE(Contains(dialogs.told[0], u"commence par un point"));
}

TEST_F(FileLibraryTest, ARefusedRenamingLeavesEveryFileAsItStoodAndSaysWhy) {
  Write("CV/a.dat", "a");
  Write("CV/B.dat", "b");
  Write("Modeles/a.jpg", "photo a");
  Click(0);
  try {
    Rename(u"CV/b");
    FAIL() << "the name is taken, in another case";
  } catch (const FileError& failure) {
    const std::string said = failure.what();
    EXPECT_NE(said.find("a.dat"), std::string::npos) << said;
    EXPECT_NE(said.find("ce nom est déjà pris"), std::string::npos) << said;
  }
  // The CV's own name is free, that of its photo is not.
  Write("Modeles/c.jpg", "photo c");
  EXPECT_THROW(Rename(u"CV/c"), FileError);
  const Text endless(300, u'x');
  EXPECT_THROW(Rename(u"CV/" + endless), FileError);
  EXPECT_THROW(Rename(u"CV/absent/d"), FileError);
  EXPECT_EQ(Bytes("CV/a.dat"), "a");
  EXPECT_EQ(Bytes("CV/B.dat"), "b");
  EXPECT_EQ(Bytes("Modeles/a.jpg"), "photo a");
  EXPECT_EQ(Bytes("Modeles/c.jpg"), "photo c");
  EXPECT_EQ(Names("CV").size(), 2u);
}

TEST_F(FileLibraryTest, ALongNameIsRefusedWhereItsCopyWouldBeTooLong) {
  const std::string longest = std::string(200, 'n') + ".dat";
  Write("CV/" + longest, "x");
  Click(0);
  library.MenuDupliquerCV();
  EXPECT_EQ(Bytes("CV/Copie de " + longest), "x");
  const std::string tooLong = std::string(248, 'n') + ".dat";
  Write("CV/" + tooLong, "y");
  fs::remove("CV/Copie de " + longest);
  fs::remove("CV/" + longest);
  Click(0);
  EXPECT_THROW(library.MenuDupliquerCV(), FileError);
  EXPECT_EQ(Bytes("CV/" + tooLong), "y");
}

TEST_F(FileLibraryTest, DocumentsOpenInTheProgramOfTheirKind) {
  for (const TextView address : {u"HTTP://X", u"http://x"}) OuvrirDocument(address, documents, dialogs);
  EXPECT_EQ(documents.opened.size(), 2u);
  OuvrirDocument(u"absent.pdf", documents, dialogs);
  EXPECT_EQ(documents.opened.size(), 2u);
  documents.answer = false;
  Write("là.pdf", "x");
  OuvrirDocument(u"là.pdf", documents, dialogs);
  EXPECT_EQ(dialogs.told.size(), 2u);

  documents.titles = {u"Calcul", u"Une page HTTP", u"http://a b", u"http://c"};
  EXPECT_EQ(FenetreHttp(documents), u"http://a b");
  EXPECT_FALSE(TraitementTexteOuvert(documents));
  documents.titles = {Text(255, u'x') + u"http", u"lettre - OpenOffice.org Writer"};
  EXPECT_EQ(FenetreHttp(documents), u"");
  EXPECT_TRUE(TraitementTexteOuvert(documents));
}

TEST_F(FileLibraryTest, TheCandidaturesAreHelpedOnlyWhereThereAreNone) {
  CandidatureMenus menu(principale, shell);
  std::vector<std::string> steps;
  int height = 5200;
  menu.ways.hauteurDescription = [&] { return height; };
  menu.ways.montrerCadreWeb = [&] { steps.push_back("cadre"); };
  menu.ways.naviguerAccueil = [&] { steps.push_back("accueil"); };
  principale.ImageMenu[10].picture = SlotPicture::ImageNew;
  EXPECT_TRUE(menu.Choose(u"MenuOuvrirCand"));
  EXPECT_EQ(principale.InfoGuide, u"") << "a low description has no room for the hint";
  height = 5201;
  EXPECT_TRUE(menu.Choose(u"MenuOuvrirCand"));
  EXPECT_TRUE(Contains(principale.InfoGuide, u"copier/coller dans la zone description"));
  EXPECT_TRUE(menu.Choose(u"MenuRechercherOffres"));
  EXPECT_TRUE(Contains(principale.InfoGuide, u"'Enregistrer cette annonce'"));
  EXPECT_EQ(steps, (std::vector<std::string>{"cadre", "accueil"}));
  EXPECT_TRUE(shell.FormeVisible(u"FormCand"));
}

}  // namespace
}  // namespace talvor
