#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "shell/assistant.h"
#include "shell/button_glyph.h"
#include "shell/depart.h"
#include "shell/guide.h"
#include "shell/home_panel.h"
#include "shell/main_menu.h"
#include "tests/fakes/fakes.h"

namespace talvor {
namespace {

TEST(ButtonGlyphs, FollowTheWholeLabelAndItsCase) {
  for (const TextView label : {u"Ok", u"Synchroniser", u"Valider", u"Appliquer"})
    EXPECT_EQ(GlyphOf(label), ButtonGlyph::Check);
  for (const TextView label : {u"Annuler", u"Supprimer"}) EXPECT_EQ(GlyphOf(label), ButtonGlyph::Cross);
  for (const TextView label : {u"Nouvelle", u"Le Nouveau"}) EXPECT_EQ(GlyphOf(label), ButtonGlyph::NewPage);
  for (const TextView label : {u"OK", u"Ok ", u"nouvelle", u"Tout Supprimer", u""})
    EXPECT_EQ(GlyphOf(label), ButtonGlyph::None);
  EXPECT_TRUE(IsPictureLabel(u"Q"));
  for (const TextView label : {u"N", u"S", u"<", u"+", u"", u"QQ"}) EXPECT_FALSE(IsPictureLabel(label));
}

class ShellTest : public testing::Test {
 protected:
  FakeShell shell;
  FakeDialogs dialogs;
  Principale principale{shell};
};

class GuideTest : public ShellTest {
 protected:
  Guide guide{principale, shell};
};

TEST_F(GuideTest, FadesInHoldsAndFadesOut) {
  shell.visible = {u"FormCand", u"Principale"};
  principale.InfoGuide = u"collez l'annonce dans la zone description";
  std::vector<int> shown;
  guide.OnChange = [&] { shown.push_back(guide.Opacity); };
  guide.Charger();
  EXPECT_EQ(shell.waited, 13 * 40 + 180 * 30 + 13 * 40);
  EXPECT_EQ(guide.place, Guide::Place::BottomLeft);
  ASSERT_EQ(shown.size(), 27u);
  EXPECT_EQ(shown.front(), 1);
  EXPECT_EQ(shown[12], 241);
  EXPECT_EQ(shown[13], 250);
  EXPECT_EQ(shown.back(), 0);
}

TEST_F(GuideTest, NeedsAFormToSpeakOfAndEndsWithTheMainWindow) {
  shell.visible = {u"Principale", u"FormStat"};
  guide.Charger();
  EXPECT_EQ(shell.waited, 0);
  shell.visible = {u"FormLettre"};
  guide.Charger();
  EXPECT_EQ(shell.waited, 2 * 13 * 40);
  EXPECT_EQ(guide.place, Guide::Place::UnderHeader);
}

class DepartTest : public ShellTest {
 protected:
  bool Start(ScreenSize screen) {
    return depart.Charger(screen, {.prepareFolder = [&] { done += "folder "; },
                                   .showPrincipale =
                                       [&] {
                                         done += "principale ";
                                         return baseFound;
                                       },
                                   .principaleWidth = [&] { return width; },
                                   .maximise = [&] { done += "maximise"; },
                                   .onChange =
                                       [&] {
                                         if (++changes == shortenAt) depart.Shorten();
                                       }});
  }

  Depart depart{dialogs, shell};
  std::string done;
  bool baseFound = true;
  int width = 1466;
  int changes = 0;
  int shortenAt = -1;
};

TEST_F(DepartTest, PlaysTheSplashBeforeTheMainWindow) {
  EXPECT_TRUE(Start({1024, 768}));
  EXPECT_TRUE(dialogs.told.empty());
  EXPECT_EQ(done, "folder principale maximise");
  EXPECT_EQ(shell.waited, 13 * 40 + 100 * 20 + 200);
  EXPECT_EQ(depart.Opacity, 241);
  EXPECT_EQ(depart.ShadowOpacity, 161 / 5);
  EXPECT_EQ(depart.PictureOffset, 13 * 120 + 100 * 50);
  EXPECT_EQ(
      std::vector<Text>(shell.calls.end() - 4, shell.calls.end()),
      (std::vector<Text>{u"Load AssistantTexte", u"Load Assistant", u"Unload Ombre", u"Unload Depart"}));
}

TEST_F(DepartTest, AKeyEndsTheWaitsAndAWideWindowIsNotMaximised) {
  shortenAt = 3;
  width = 1467;
  EXPECT_TRUE(Start({1920, 1080}));
  EXPECT_EQ(shell.waited, 3 * 40);
  EXPECT_EQ(changes, 113) << "every picture is still shown";
  EXPECT_EQ(done, "folder principale ");
}

TEST_F(DepartTest, ASmallScreenIsToldAndAMissingBaseEndsTheStart) {
  baseFound = false;
  EXPECT_FALSE(Start({999, 768}));
  EXPECT_EQ(dialogs.told.size(), 1u);
  EXPECT_FALSE(Start({1000, 733}));
  EXPECT_EQ(dialogs.told.size(), 2u);
  EXPECT_FALSE(Start({1000, 734}));
  EXPECT_EQ(dialogs.told.size(), 2u);
  EXPECT_EQ(std::count(shell.calls.begin(), shell.calls.end(), u"Load AssistantTexte"), 0);
}

TEST(Depart, AFullHdScreenIsNoSmallOneAtAnyUsualZoom) {
  struct Case {
    ScreenSize screen;
    bool small;
    const char* what;
  };
  for (const auto& [screen, small, what] : {Case{{1536, 864, 1.25}, false, "Full HD at 125 %"},
                                            {{1280, 720, 1.5}, false, "Full HD at 150 %"},
                                            {{1097, 617, 1.75}, false, "Full HD at 175 %"},
                                            {{960, 540, 2}, false, "Full HD at 200 %"},
                                            {{910, 512, 1.5}, false, "1366x768 at 150 %"},
                                            {{1280, 720, 1}, true, "1280x720, not zoomed"},
                                            {{800, 600, 1}, true, "800x600"},
                                            {{640, 480, 1.25}, true, "800x600 at 125 %"},
                                            {{683, 384, 2}, true, "1366x768 with no room for the window"},
                                            {{640, 360, 3}, true, "Full HD with no room for the window"}})
    EXPECT_EQ(IsTooSmall(screen), small) << what;
}

TEST_F(ShellTest, TheMenuClosesTheFormsUnlessTheAssistantStands) {
  MainMenu menu(shell);
  shell.visible = {u"Assistant"};
  menu.GoHome();
  EXPECT_TRUE(shell.calls.empty());
  shell.visible = {u"FormCand"};
  menu.GoHome();
  EXPECT_EQ(shell.calls, (std::vector<Text>{u"Unload AssistantTexte", u"Load AssistantTexte",
                                            u"Unload FormLettre", u"Unload FormRédigerCV", u"Unload FormCand",
                                            u"Unload Guide", u"Unload Aide", u"Load Assistant"}));
}

TEST_F(ShellTest, ASlotTellsItsNameKindAndCaption) {
  principale.ImageMenu[0] = {true, SlotPicture::CVWord, u"a.b.docx"};
  principale.ImageMenu[5] = {true, SlotPicture::ImageLettre, u"Julie (IS) x (ER).dat"};
  principale.ImageMenu[10] = {true, SlotPicture::ImageCandidature, u"Gérer mes candidatures"};
  EXPECT_EQ(SlotInformation(principale, 0), u"CV : a.b.docx");
  EXPECT_EQ(SlotCaption(principale, 0), u"a.b");
  EXPECT_EQ(SlotInformation(principale, 1), u"Créer nouveau");
  EXPECT_EQ(SlotInformation(principale, 5), u"Modèle de lettre : Julie (IS) x (ER).dat");
  EXPECT_EQ(KindInName(principale.ImageMenu[5].toolTip), u"ER");
  EXPECT_EQ(SlotInformation(principale, 10), u"Gérer mes candidatures");

  HoverCandidatures(principale, true);
  EXPECT_EQ(principale.ImageMenu[10].picture, SlotPicture::ImageCandidatureSel);
  HoverCandidatures(principale, false);
  EXPECT_EQ(principale.ImageMenu[10].picture, SlotPicture::ImageCandidature);
  principale.ImageMenu[10].picture = SlotPicture::ImageNew;
  HoverCandidatures(principale, true);
  EXPECT_EQ(principale.ImageMenu[10].picture, SlotPicture::ImageNew);
}

class HomePanelTest : public ShellTest {
 protected:
  AssistantTexte panel{principale, shell, dialogs};
};

TEST_F(HomePanelTest, CountsTheSlotsBeforeTheFreeOne) {
  principale.NbCand = u"3";
  for (std::size_t i = 0; i < 3; ++i) principale.ImageMenu[i].visible = true;
  panel.Charger();
  EXPECT_EQ(panel.Compteurs, u"Nombre de CV : 2\r\nNombre de lettres : 0\r\nNombre de candidatures : 3");
  EXPECT_EQ(panel.Rows.size(), 4u);
}

TEST_F(HomePanelTest, TitlesAreCommands) {
  principale.ImageMenu[0].toolTip = u"Julie.dat";
  principale.ImageMenu[5].toolTip = u"Réponse (ER).dat";
  principale.ImageMenu[6].toolTip = u"Sans suffixe.dat";
  Text opened;
  panel.commands.ouvrirCv = [&](TextView file) { opened = file; };
  panel.commands.ouvrirLettre = [&](TextView file) { opened = file; };

  panel.Choose(u"Rédiger un Curriculum Vitae");
  EXPECT_EQ(panel.Rows[2], (HomeRow{u"Julie", u"Consulter / Modifier"}));
  panel.Choose(u"Julie");
  EXPECT_EQ(opened, u"Julie.dat");

  panel.Choose(u"Rédiger un modèle de lettre");
  EXPECT_EQ(panel.Rows[1], (HomeRow{u"Réponse (ER)", u"Modèle mail, réponse à une annonce"}));
  EXPECT_EQ(panel.Rows[2], (HomeRow{u"Sans suffixe", u""}));
  panel.Choose(u"Sans suffixe");
  EXPECT_EQ(opened, u"Sans suffixe.dat");

  panel.Choose(panel.Rows.back().title);
  EXPECT_EQ(shell.calls.back(), u"Load AssistantTexte");
  principale.ImageMenu[0].toolTip = u"Julie.doc";
  panel.ChoixCV();
  EXPECT_EQ(panel.Rows[2], HomeRow{}) << "only a file of the editor is offered";
}

TEST_F(HomePanelTest, AChangeOfLevelMovesTheRowsAwayAndTheyComeBackInAShortTime) {
  panel.ChoixCV();
  int before = panel.RowOffset;
  EXPECT_EQ(before, AssistantTexte::FarthestRowOffset);
  int ticks = 1;
  while (panel.Slide()) {
    EXPECT_LT(panel.RowOffset, before);
    before = panel.RowOffset;
    ++ticks;
  }
  EXPECT_EQ(panel.RowOffset, 0);
  EXPECT_LE(ticks, 12);
}

TEST_F(HomePanelTest, TheAssistantGivesWayToTheEditor) {
  Assistant assistant(shell);
  assistant.CloseIfEditorOpen();
  EXPECT_TRUE(shell.calls.empty());
  shell.visible.insert(u"FormRédigerCV");
  assistant.CloseIfEditorOpen();
  EXPECT_EQ(shell.calls, std::vector<Text>{u"Unload Assistant"});
}

TEST_F(HomePanelTest, AttachingTheFirstCvIsAdvisedAgainst) {
  int attached = 0;
  panel.commands.rattacherCv = [&] { ++attached; };
  principale.ImageMenu[0].picture = SlotPicture::ImageNew;
  panel.Choose(u"Rattacher un CV existant");
  ASSERT_EQ(dialogs.told.size(), 1u);
  EXPECT_TRUE(Contains(dialogs.told[0], u"prégénération des courriers d'accompagnement"));
  principale.ImageMenu[0].picture = SlotPicture::CVPDF;
  panel.Choose(u"Rattacher un CV existant");
  EXPECT_EQ(dialogs.told.size(), 1u);
  EXPECT_EQ(attached, 2);
}

TEST_F(HomePanelTest, TheFirstCandidatureIsHelpedByAHint) {
  principale.ImageMenu[10].picture = SlotPicture::ImageCandidature;
  panel.Choose(u"Gestion manuelle des candidatures");
  EXPECT_TRUE(shell.FormeVisible(u"FormCand"));
  EXPECT_EQ(principale.InfoGuide, u"");
  principale.ImageMenu[10].picture = SlotPicture::ImageNew;
  panel.Choose(u"Gestion manuelle des candidatures");
  EXPECT_TRUE(Contains(principale.InfoGuide, u"copier/coller dans la zone description"));
}

}  // namespace
}  // namespace talvor
