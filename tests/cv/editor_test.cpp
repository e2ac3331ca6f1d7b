#include "cv/editor.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"
#include "base/line_file.h"
#include "cv/colours.h"
#include "cv/cv_file.h"
#include "cv/editor_texts.h"
#include "tests/cv/fakes.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;
using Panel = FormRedigerCV::Panel;

class Editor : public testing::Test {
 protected:
  Editor() {
    for (const char* folder : {"CV", "Modeles", "Visualisation"}) fs::create_directories(folder);
    Write("Modeles/Basic.htm", "<p>#Nom#|#Prenom#|#Etudes#|#Langues#|#Photographie#|#FF6600|#FFE6D5</p>");
    clock_.today = *DayOf({2026, 6, 15});
  }

  static void Write(const fs::path& file, std::string_view bytes) {
    ASSERT_FALSE(WriteBytes(file, bytes).Failed());
  }
  static std::string Page() { return ReadBytes("Modeles/CVtemp.html").value_or("no page"); }

  // Runs what the user does and tells how many renders it made.
  template <class Action>
  std::size_t Renders(Action action) {
    const auto before = browser_.visited.size();
    action();
    return browser_.visited.size() - before;
  }

  ScratchFolder scratch_;
  FakeShell shell_;
  FakeDialogs dialogs_;
  FakePickers pickers_;
  FakeMenus menus_;
  FakeBrowser browser_;
  FakeClipboard clipboard_;
  FakeEnvironment environment_;
  FakeClock clock_;
  Principale principale_{shell_};
  Text help_;
  int layouts_ = 0;
  std::vector<Text> opened_;
  FormRedigerCV form_{{principale_,
                       shell_,
                       dialogs_,
                       pickers_,
                       menus_,
                       browser_,
                       clipboard_,
                       environment_,
                       clock_,
                       [this](TextView text) { help_ = text; },
                       [this] { ++layouts_; },
                       {},
                       {},
                       [this](TextView document) { opened_.emplace_back(document); }}};
};

TEST_F(Editor, OpeningListsTheTemplatesAndGreetsAUserWithoutCv) {
  Write("Modeles/Zen.HTM", "");
  Write("Modeles/CVtemp.html", "");
  Write("Modeles/photo.jpg", "");
  principale_.InitMenu();
  form_.Open(16000);
  EXPECT_EQ(form_.templateRows, (std::vector<Text>{u"Basic", u"Zen"}));
  EXPECT_EQ(browser_.visited, std::vector<Text>{u"about:<html><body bgcolor=#FFFFFE></body></html>"});
  EXPECT_EQ(shell_.waited, 500 + 1000) << "the pause and the hint's second";
  EXPECT_EQ(principale_.InfoGuide, editor_texts::Welcome);
  EXPECT_FALSE(form_.compact);

  Write("CV/a.dat", "");
  principale_.InitMenu();
  form_.Open(15999);
  EXPECT_EQ(shell_.waited, 1500) << "no greeting once a CV exists";
  EXPECT_TRUE(form_.compact);
}

struct Left {
  TextView field, before, after;
  std::size_t renders;
  friend void PrintTo(const Left& row, std::ostream* out) {
    *out << ToUtf8(row.field) << " left with " << ToUtf8(row.before);
  }
};

class FieldsLeft : public Editor, public testing::WithParamInterface<Left> {};

TEST_P(FieldsLeft, FollowTheirRule) {
  const auto [field, before, after, renders] = GetParam();
  form_.*(FindField(CvFields, field)->text) = before;
  EXPECT_EQ(Renders([&] { form_.Leave(GetParam().field); }), renders);
  EXPECT_EQ(form_.*(FindField(CvFields, field)->text), after);
}

INSTANTIATE_TEST_SUITE_P(
    Editor, FieldsLeft,
    testing::Values(Left{u"Nom", u"dupont-réal", u"DUPONT-RÉAL", 0}, Left{u"Prénom", u"é", u"é", 0},
                    Left{u"Prénom", u"jean-MARC zoé", u"Jean-marc Zoé", 1},
                    Left{u"Adresse1", u"RUE du bac", u"Rue Du Bac", 0},
                    Left{u"Pays", u"FRANCE", u"France", 0}, Left{u"Adresse2", u"BÂT b", u"BÂT b", 0},
                    Left{u"Ville", u"saint-LÔ", u"Saint-LÔ", 0}, Left{u"Ville", u"y", u"y", 0},
                    Left{u"LieuNaissance", u"évry", u"Évry", 0}, Left{u"Etudes", u"bac", u"bac", 1},
                    Left{u"Etudes", u"", u"", 0}, Left{u"LanguesPlus", u" ", u" ", 1},
                    Left{u"Objectifs", u"x", u"x", 1}, Left{u"Email", u"X@Y.FR", u"X@Y.FR", 0},
                    Left{u"Age", u"3", u"3", 0}, Left{u"Identite", u"  ", u"  ", 0}));

TEST_F(Editor, LeavingAPastedIdentityFillsTheZonesThePageAndTheFile) {
  form_.Identite = u"Zoé Łódź\r\n12 rue des Lilas\r\n75011 Paris";
  EXPECT_EQ(Renders([&] { form_.Leave(u"Identite"); }), 1u);
  EXPECT_FALSE(form_.IdentityBoxVisible);
  EXPECT_EQ(Page(),
            "<p>&#321;\xF3"
            "d&#378;|Zo\xE9|<b></b>|||#FF6600|#FFE6D5</p>\r\n\r\n");
  EXPECT_EQ(browser_.visited.back(), *TextOf(scratch_.Path() / "Modeles/CVtemp.html"));
  EXPECT_EQ(layouts_, 1);
  EXPECT_EQ(form_.NomCV, u"D Zoe") << "letters outside the alphabet of names are blanks";
  CvDocument saved;
  ASSERT_TRUE(ReadCv("CV/D Zoe.dat", saved));
  EXPECT_EQ(saved.Nom, u"Łódź");
  EXPECT_EQ(saved.Ville, u"Paris");
  EXPECT_EQ(principale_.ImageMenu[0].toolTip, u"D Zoe.dat");
}

TEST_F(Editor, ABirthDateInAPastedBlockSetsTheAgeInTheMidstOfItsLines) {
  form_.Identite = u"Inès Le Bris\r\navenue Foch\r\nNée le 12/03/1975 à Brest\r\n44 ans";
  form_.Leave(u"Identite");
  EXPECT_EQ(form_.Age, u"51") << "so that the line with the age comes too late";
}

struct Birth {
  TextView age, date, result;
  friend void PrintTo(const Birth& row, std::ostream* out) {
    *out << ToUtf8(row.age) << " and " << ToUtf8(row.date);
  }
};

class Ages : public Editor, public testing::WithParamInterface<Birth> {};

TEST_P(Ages, FollowTheBirthDateUnlessTheyLookRight) {
  form_.Age = GetParam().age;
  form_.Change(u"DateNaissance", GetParam().date);
  EXPECT_EQ(form_.Age, GetParam().result);
}

// Today is 15 June 2026.
INSTANTIATE_TEST_SUITE_P(Editor, Ages,
                         testing::Values(Birth{u"", u"15/06/1986", u"40"}, Birth{u"35", u"15/06/1986", u"35"},
                                         Birth{u"5", u"15/06/1986", u"40"},
                                         Birth{u"81", u"15/06/1986", u"40"},
                                         Birth{u"15", u"15/06/1986", u"15"},
                                         Birth{u"80 ans", u"15/06/1986", u"80 ans"},
                                         Birth{u"", u"25/06/1986", u"40"},  // years of 365 days
                                         Birth{u"", u"26/06/1986", u"39"}, Birth{u"", u"demain", u""},
                                         Birth{u"7", u"31/02/1986", u"7"}, Birth{u"", u"01/07/2026", u"0"}));

TEST_F(Editor, ChangesOfTheLookRenderAndOthersDoNot) {
  for (const TextView field :
       {u"Gras", u"Souligné", u"Indentation", u"Saut", u"Couleur", u"Police", u"LangueCV"})
    EXPECT_EQ(Renders([&] { form_.Change(field, u"x"); }), 1u) << ToUtf8(field);
  EXPECT_EQ(Renders([&] { form_.Change(u"Police", u"x"); }), 0u) << "no change";
  for (const TextView field : {u"Nom", u"CouleurClaire", u"NomModele", u"Inconnu"})
    EXPECT_EQ(Renders([&] { form_.Change(field, u"y"); }), 0u) << ToUtf8(field);
  EXPECT_EQ(Renders([&] { form_.Render(); }), 1u);
}

TEST_F(Editor, ParagraphBoxesCopyTheirValueToTheirMirror) {
  form_.ToggleParagraph(0);
  form_.ToggleParagraph(3);
  EXPECT_EQ(form_.Gras, u"0");
  EXPECT_EQ(form_.Saut, u"1");
  form_.ToggleParagraph(1);
  form_.ToggleParagraph(2);
  EXPECT_EQ(form_.Souligne, u"1");
  EXPECT_EQ(form_.Indentation, u"0");
  EXPECT_EQ(browser_.visited.size(), 4u);
  form_.ToggleParagraph(4);
}

TEST_F(Editor, DispositionsExcludeEachOtherInEitherDirection) {
  form_.ToggleOrder(1);
  EXPECT_TRUE(form_.CheckDisposition[1] && !form_.CheckDisposition[0]);
  form_.ToggleOrder(1);
  EXPECT_TRUE(!form_.CheckDisposition[1] && form_.CheckDisposition[0]);
  form_.ToggleOrder(2);
  EXPECT_EQ(browser_.visited.size(), 2u);
}

TEST_F(Editor, ALanguageHasOneLevelOrNone) {
  form_.LangueProf[3] = form_.LangueScolaire[3] = form_.LangueProf[4] = true;  // as a file can have it
  form_.ToggleLanguage(u"LangueCourant", 3);
  form_.ToggleLanguage(u"LangueBilingue", 3);
  EXPECT_TRUE(form_.LangueBilingue[3]);
  EXPECT_FALSE(form_.LangueCourant[3] || form_.LangueProf[3] || form_.LangueScolaire[3]);
  EXPECT_TRUE(form_.LangueProf[4]) << "the other rows stay";
  EXPECT_EQ(form_.Langues, u"Italien bilingue\r\nRusse professionnel\r\n");
  form_.ToggleLanguage(u"LangueBilingue", 3);
  EXPECT_EQ(form_.Langues, u"Russe professionnel\r\n");
  form_.ToggleLanguage(u"LangueProf", 9);
  form_.ToggleLanguage(u"CheckParagraphe", 0);
  EXPECT_EQ(browser_.visited.size(), 3u);
}

TEST_F(Editor, ColoursComeInPairsAndThePageShowsBoth) {
  EXPECT_EQ(ColourText(PaleColour({0, 0, 0})), u"#DEDEDE");
  EXPECT_EQ(ColourText(PaleColour({255, 255, 255})), u"#FFFFFF");
  EXPECT_EQ(ColourText(PaleColour({0x0A, 0x66, 0xF0})), u"#DFEBFD");
  pickers_.colour = Colour{0x0A, 0x66, 0xF0};
  EXPECT_EQ(Renders([&] { form_.ChooseOtherColour(); }), 1u);
  EXPECT_EQ(Page(), "<p>||<b></b>|||#0A66F0|#DFEBFD</p>\r\n\r\n");
  pickers_.colour.reset();
  EXPECT_EQ(Renders([&] { form_.ChooseOtherColour(); }), 0u);
  form_.ChooseSwatch(Swatches.size());
  EXPECT_EQ(form_.Couleur, u"#0A66F0");
  form_.ChooseSwatch(0);
  EXPECT_EQ(form_.Couleur, u"#FF6600");
}

TEST_F(Editor, OnePanelAtMostIsOpen) {
  form_.Enter(u"NomModele");
  EXPECT_EQ(form_.openPanel, Panel::Templates);
  form_.OpenFonts();
  EXPECT_EQ(form_.openPanel, Panel::Fonts);
  form_.Leave(u"Police");
  EXPECT_EQ(form_.openPanel, Panel::None);
  form_.OpenEntry(0);
  EXPECT_EQ(form_.openPanel, Panel::Paragraph);
  form_.OpenEntry(1);
  EXPECT_EQ(form_.openPanel, Panel::Colours);
  EXPECT_EQ(shell_.log, (std::vector<Text>{u"focus FormRédigerCV.Age", u"focus FormRédigerCV.Nom"}));
  form_.Leave(u"Nom");
  EXPECT_EQ(form_.openPanel, Panel::None);
  form_.OpenTemplates();
  form_.OpenEntry(2);
  EXPECT_EQ(form_.openPanel, Panel::None);
  EXPECT_EQ(menus_.opened, u"MenuLangues");
  form_.OpenEntry(3);
  EXPECT_EQ(menus_.opened, u"MenuImprimer");
}

TEST_F(Editor, AnItemOfItsMenusLeadsWhereItSays) {
  environment_.variables[u"userprofile"] = *TextOf(scratch_.Path());
  fs::create_directories("Documents");
  Write("Documents/essai.DOC", "x");
  form_.NomCV = u"Essai";
  form_.Photo = "GIF89a";
  for (const TextView item : {u"MenuAnglais", u"SupprimerPhoto", u"MessageTrames", u"MenuConvFWord",
                              u"ConsulterWord", u"PrévisualiserCV", u"ImprimerCV"})
    EXPECT_TRUE(form_.Choose(item)) << ToUtf8(item);
  EXPECT_EQ(form_.LangueCV, u"1");
  EXPECT_EQ(form_.Photo, "");
  EXPECT_EQ(shell_.log, (std::vector<Text>{u"show MiseEnPage", u"show FormConvert"}));
  EXPECT_EQ(opened_, std::vector<Text>{*TextOf(scratch_.Path() / "Documents/essai.DOC")});
  EXPECT_FALSE(form_.Choose(u"MenuNouveauCV")) << "an item of the slots";
}

TEST_F(Editor, TheLastWordVersionIsOfferedWhenItExists) {
  environment_.variables[u"userprofile"] = *TextOf(scratch_.Path());
  form_.NomCV = u"Essai";
  form_.OpenEntry(4);
  EXPECT_FALSE(menus_.enabled.at(u"ConsulterWord"));
  fs::create_directories("Documents");
  Write("Documents/Essai.doc", "x");
  form_.OpenEntry(4);
  EXPECT_TRUE(menus_.enabled.at(u"ConsulterWord"));
  EXPECT_EQ(menus_.opened, u"MenuConvertirWord");
}

TEST_F(Editor, ListsFillTheirFields) {
  Write("Modeles/Zen.htm", "zen");
  form_.Open(20000);
  form_.OpenTemplates();
  form_.ChooseTemplate(1);
  EXPECT_EQ(form_.NomModele, u"Zen");
  EXPECT_EQ(form_.openPanel, Panel::None);
  EXPECT_EQ(Page(), "zen\r\n\r\n");
  form_.ChooseFont(5);
  EXPECT_EQ(form_.Police, u"Lucida Handwriting");
  form_.ChooseSituation(3);
  EXPECT_EQ(form_.Situation, u"Veuf(ve)");
  form_.ChooseTemplate(2);
  form_.ChooseFont(6);
  form_.ChooseSituation(5);
  EXPECT_EQ(form_.Modele, u"Zen.htm");
  form_.HideIdentityBox();
  EXPECT_FALSE(form_.IdentityBoxVisible);
}

TEST_F(Editor, HelpOfAParagraphBeginsWithTheNoteOnItsLayout) {
  form_.ShowHelpOf(16);
  EXPECT_TRUE(help_.starts_with(u"Compléter ici la fonction principale du CV, Préciser"));
  form_.ShowHelpOf(20);
  EXPECT_TRUE(help_.starts_with(Text{editor_texts::ParagraphNote} + u"\r\nLes compétences permettent"));
  EXPECT_EQ(shell_.log, (std::vector<Text>{u"show Aide", u"show Aide"}));
  shell_.visible = u"Aide";
  form_.ShowHelpOf(17);
  form_.ShowHelpOf(13);
  EXPECT_TRUE(help_.starts_with(u"On fera apparaître"));
  EXPECT_EQ(shell_.log.size(), 2u);
}

TEST_F(Editor, LoadingFillsTheFormOnceRendersOnceAndMirrorsTheIdentity) {
  Write("CV/jean dupont.dat",
        ToCodePage(u"Nom=Dupont\r\nPrénom=Jean\r\nDivers=d\r\nNomCV=Autre\r\nCouleur=#000000\r\n"
                   u"LangueCV=1\r\nDateNaissance=15/06/1986\r\n1:CheckDisposition=1\r\n"
                   u"0:CheckDisposition=1\r\n2:CheckParagraphe=0\r\nbruit\r\n"));
  EXPECT_EQ(Renders([&] { form_.ChargerFichierCV(fs::absolute("CV/jean dupont.dat")); }), 1u);
  EXPECT_EQ(principale_.Nom, u"Dupont");
  EXPECT_EQ(principale_.Prenom, u"Jean");
  EXPECT_EQ(form_.Age, u"40");
  EXPECT_TRUE(form_.CheckDisposition[0] && form_.CheckDisposition[1]) << "loading is not clicking";
  EXPECT_EQ(form_.Indentation, u"1");
  EXPECT_TRUE(menus_.checked[u"MenuAnglais"]);
  EXPECT_FALSE(menus_.checked[u"MenuFrancais"]);
  EXPECT_EQ(form_.NomCV, u"Jean Dupont") << "the file's name wins, and the save puts it into form";
  EXPECT_EQ(form_.ZonesTitle, u"Zones d'informations (Jean Dupont)");
  EXPECT_TRUE(form_.RenderingOn);
  EXPECT_TRUE(fs::exists("CV/Jean Dupont.dat"));
  EXPECT_TRUE(fs::exists("Sauvegardes/CV/jean dupont.1.dat")) << "a line that the form drops is not lost";

  EXPECT_EQ(Renders([&] { form_.ChargerFichierCV("CV/absent.dat"); }), 1u);
  EXPECT_EQ(form_.Divers, u"d") << "a file that cannot be read changes no zone";
  Write("CV/b.dat", ToCodePage(u"LangueCV=3\r\nVille=Lyon\r\n"));
  form_.ChargerFichierCV("CV/b.dat");
  EXPECT_EQ(form_.Divers, u"d") << "nothing is cleared between two loads";
  EXPECT_EQ(principale_.Ville, u"Lyon");
  EXPECT_FALSE(menus_.checked[u"MenuAnglais"] || menus_.checked[u"MenuFrancais"]);
}

TEST_F(Editor, ACvNamesItselfAndPassesThreeHomonymsButNotAFourth) {
  form_.Nom = u"DUPONT";
  form_.Prenom = u"Marie";
  std::vector<Text> names;
  for (int i = 0; i < 5; ++i) {
    form_.NomCV.clear();
    form_.VisualisationCV();
    names.push_back(form_.NomCV);
  }
  const Text copy = u"Copie De ";
  EXPECT_EQ(names,
            (std::vector<Text>{u"Dupont Marie", copy + u"Dupont Marie", copy + copy + u"Dupont Marie",
                               copy + copy + copy + u"Dupont Marie", copy + copy + copy + u"Dupont Marie"}));
  form_.VisualisationCV();
  EXPECT_EQ(form_.NomCV, names.back()) << "a CV that has its name keeps it";
}

TEST_F(Editor, WhatWasTypedSinceTheLastSaveIsSavedUnderANameOfItsOwn) {
  form_.EnregistrerSaisie();
  form_.Change(u"Tel", u"0102030405");
  form_.EnregistrerSaisie();
  EXPECT_TRUE(fs::is_empty("CV")) << "no surname, no file";

  Write("CV/Dupont Marie.dat", "Nom=DUPONT\r\n");
  form_.Change(u"Nom", u"DUPONT");
  form_.Change(u"Prénom", u"Marie");
  form_.EnregistrerSaisie();
  EXPECT_EQ(ReadBytes("CV/Dupont Marie.dat"), "Nom=DUPONT\r\n") << "a homonym stays";
  CvDocument saved;
  ASSERT_TRUE(ReadCv("CV/Copie De Dupont Marie.dat", saved));
  EXPECT_EQ(saved.Tel, u"0102030405");
  EXPECT_TRUE(browser_.visited.empty());

  // A deleted file does not come back by itself.
  fs::remove("CV/Copie De Dupont Marie.dat");
  form_.EnregistrerSaisie();
  EXPECT_FALSE(fs::exists("CV/Copie De Dupont Marie.dat"));
  form_.Change(u"Tel", u"0102030406");
  form_.VisualisationCV();
  fs::remove("CV/Copie De Dupont Marie.dat");
  form_.EnregistrerSaisie();
  EXPECT_FALSE(fs::exists("CV/Copie De Dupont Marie.dat")) << "the render has saved";
}

TEST_F(Editor, WithoutItsTemplateNothingIsRenderedNorSaved) {
  form_.Nom = u"DUPONT";
  Write("secret.htm", "secret");
  for (const TextView name : {u"", u"Absent.htm", u"../secret.htm", u"..\\secret.htm"}) {
    form_.Modele = name;
    EXPECT_EQ(Renders([&] { form_.VisualisationCV(); }), 0u) << ToUtf8(name);
  }
  EXPECT_FALSE(form_.IdentityBoxVisible);
  EXPECT_TRUE(fs::is_empty("CV"));
  form_.Modele = u"BASIC.HTM";
  EXPECT_EQ(Renders([&] { form_.VisualisationCV(); }), 1u) << "names are compared without regard to case";
  form_.RenderingOn = false;
  EXPECT_EQ(Renders([&] { form_.VisualisationCV(); }), 0u);
}

TEST_F(Editor, AnAttachedPhotoKeepsItsBytesAndReachesThePage) {
  environment_.variables[u"homepath"] = u"/moi";
  form_.NomCV = u"Essai";
  form_.RattacherPhoto();
  EXPECT_EQ(pickers_.asked.folder, fs::path{"/moi/Pictures"});
  EXPECT_TRUE(browser_.visited.empty()) << "the user gave up";

  Write("portrait.gif", "GIF89a");
  pickers_.file = fs::absolute("portrait.gif");
  form_.RattacherPhoto();
  EXPECT_EQ(form_.Photo, "GIF89a");
  EXPECT_EQ(ReadBytes("Modeles/Essai.jpg"), "GIF89a");
  EXPECT_EQ(ReadBytes("Modeles/Photo.jpg"), "GIF89a");
  EXPECT_NE(Page().find("padding: 0.05cm' SRC='Photo.jpg' WIDTH=100>"), std::string::npos);

  pickers_.file = fs::absolute("absent.png");
  EXPECT_EQ(Renders([&] { form_.RattacherPhoto(); }), 0u);
  ASSERT_EQ(dialogs_.told.size(), 1u);
  EXPECT_TRUE(Contains(dialogs_.told[0], u"absent.png\u00A0» n’a pas pu être copiée\u00A0: ce fichier"))
      << ToUtf8(dialogs_.told[0]);
  EXPECT_EQ(form_.Photo, "GIF89a");
  EXPECT_EQ(ReadBytes("Modeles/Essai.jpg"), "GIF89a");

  form_.SupprimerPhoto();
  EXPECT_EQ(form_.Photo, "");
  EXPECT_FALSE(fs::exists("Modeles/Essai.jpg") || fs::exists("Modeles/Photo.jpg"));
  EXPECT_EQ(Page().find("IMG"), std::string::npos);
}

TEST_F(Editor, APastedPhotoGoesUnderTheTemplatesNameAndNotOntoThePage) {
  EXPECT_EQ(Renders([&] { form_.CollerPhoto(); }), 0u) << "no picture on the clipboard";
  form_.NomCV = u"Essai";
  clipboard_.image = "PNG";
  EXPECT_EQ(Renders([&] { form_.CollerPhoto(); }), 1u);
  EXPECT_EQ(form_.Photo, "PNG");
  EXPECT_EQ(ReadBytes("Visualisation/Basic.jpg"), "PNG");
  EXPECT_FALSE(fs::exists("Modeles/Essai.jpg"));
  form_.NomModele = u"../evasion";
  form_.CollerPhoto();
  EXPECT_FALSE(fs::exists("evasion.jpg"));
}

TEST_F(Editor, LoadingShowsThePhotoOfTheCvOrElseOfItsTemplate) {
  Write("Modeles/Basic.jpg", "modele");
  Write("CV/Essai.dat", "Age=30\r\n");
  form_.ChargerFichierCV("CV/Essai.dat");
  EXPECT_EQ(form_.Photo, "modele");
  Write("Modeles/essai.JPG", "photo");
  form_.ChargerFichierCV("CV/Essai.dat");
  EXPECT_EQ(form_.Photo, "photo");
  Write("CV/Photo.dat", "Age=30\r\n");
  form_.ChargerFichierCV("CV/Photo.dat");
  EXPECT_EQ(ReadBytes("Modeles/Photo.jpg"), "photo") << "a CV named like the page's picture keeps it";
}

}  // namespace
}  // namespace talvor
