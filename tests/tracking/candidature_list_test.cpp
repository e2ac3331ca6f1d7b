#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "base/couper_texte.h"
#include "tests/tracking/tracking_fixture.h"
#include "tracking/form_cand_messages.h"
#include "tracking/status_lists.h"

namespace talvor {
namespace {

struct CutText {
  Text text;
  Text cut;
  const char* reason;
  friend void PrintTo(const CutText& row, std::ostream* out) { *out << row.reason; }
};

class Cuts : public testing::TestWithParam<CutText> {};

TEST_P(Cuts, FitTheColumn) { EXPECT_EQ(CouperTexte(GetParam().text), GetParam().cut); }

INSTANTIATE_TEST_SUITE_P(
    CouperTexte, Cuts,
    testing::Values(CutText{Text(40, u'x'), Text(40, u'x'), "40 characters stay whole"},
                    CutText{u"  ab  ", u"ab", "a short text is trimmed"},
                    CutText{Text(41, u'x'), u"xxx", "no blank keeps three characters"},
                    CutText{Text(19, u'x') + u" " + Text(30, u'y'), Text(19, u'x'), "the blank at 20 goes"},
                    CutText{Text(34, u'x') + u" " + Text(30, u'y'), Text(34, u'x'), "the blank at 35 counts"},
                    CutText{Text(35, u'x') + u" " + Text(30, u'y'), u"xxx", "the blank at 36 does not"},
                    CutText{u"Responsable des achats et de la gestion des stocks",
                            u"Responsable des achats et de la", "cut at a word"},
                    CutText{u"Chargé de la clientèle grands comptes en région",
                            u"Chargé de la clientèle grands", "no link word left out of order"},
                    CutText{u"Technicien supérieur de maintenance De yyyyyyyyyyyy", u"Technicien supérieur",
                            "DE goes in any case, with the word behind it"},
                    CutText{Text(20, u'x') + u" ET EN DU de yyyyyyyyyyyyyyyyyy", Text(20, u'x'),
                            "a chain in the order of the tests goes whole"},
                    CutText{Text(20, u'x') + u" de du yyyyyyyyyyyyyyyyyyyyyy", Text(20, u'x') + u" de",
                            "each once: DE is tried before DU"}));

class ListTest : public TrackingTest {
 protected:
  std::string OutlineBy(Tri tri) {
    form.SortBy(tri);
    return Outline(form.Liste);
  }
};

TEST_F(ListTest, GroupsRowsUnderEachOfTheFourSorts) {
  Insert({.Intitule = u"Comptable",
          .Societe = u"ACME",
          .Origine = u"apec",
          .DateDiffusion = u"05/02/2026",
          .Statut = u"NON EMISE"});
  Insert({.Intitule = u"Caissier",
          .Societe = u"3 Suisses",
          .Origine = u"APEC",
          .Statut = Text{ListeStatuts[2]}});
  Insert({.Intitule = u"Vendeur",
          .Societe = u"acme",
          .DateDiffusion = u"06/02/2026",
          .Statut = Text{SansReponseApresEntretien}});
  Insert(
      {.Intitule = u"Maçon", .Societe = u"0 défaut", .DateDiffusion = u"06/02/2026", .Statut = u"NON EMISE"});

  EXPECT_EQ(OutlineBy(Tri::Societes),
            "0 défaut\n  s4: 06/02/2026 Maçon, 0 défaut\n"
            "Valeur 3 Suisses\n  s2:  Caissier, 3 Suisses\n"
            "ACME\n  s1: 05/02/2026 Comptable, ACME\n"
            "acme\n  s3: 06/02/2026 Vendeur, acme\n");
  EXPECT_EQ(OutlineBy(Tri::Dates),
            "Date : 06/02/2026\n  s3: 06/02/2026 Vendeur, acme\n  s4: 06/02/2026 Maçon, 0 défaut\n"
            "Date : 05/02/2026\n  s1: 05/02/2026 Comptable, ACME\n"
            "Date : \n  s2:  Caissier, 3 Suisses\n");
  EXPECT_EQ(OutlineBy(Tri::Statuts),
            "Candidatures sans reponse apres entretien\n  s3: 06/02/2026 Vendeur, acme\n"
            "Candidatures non émises\n  s1: 05/02/2026 Comptable, ACME\n  s4: 06/02/2026 Maçon, 0 défaut\n"
            "Candidatures émises - sans reponse\n  s2:  Caissier, 3 Suisses\n");
  EXPECT_EQ(OutlineBy(Tri::Origine),
            "Origine : \n  s3: 06/02/2026 Vendeur, acme\n  s4: 06/02/2026 Maçon, 0 défaut\n"
            "Origine : apec\n  s1: 05/02/2026 Comptable, ACME\n"
            "Origine : APEC\n  s2:  Caissier, 3 Suisses\n");
}

TEST_F(ListTest, ALabelThatComesBackFindsItsFirstGroup) {
  for (const TextView company : {u"Acme", u"ACME", u"Acme"})
    Insert({.Intitule = u"x", .Societe = Text{company}});
  EXPECT_EQ(OutlineBy(Tri::Societes), "Acme\n  s1:  x, Acme\n  s3:  x, Acme\nACME\n  s2:  x, ACME\n");
}

TEST_F(ListTest, AnEmptyTableOrAMissingBaseLeavesTheTreeEmptyAndTheSlotAsItIs) {
  form.InitListe();
  EXPECT_TRUE(form.Liste.Empty());
  EXPECT_TRUE(form.ListVisible);
  EXPECT_EQ(principale.ImageMenu[10].picture, SlotPicture::None);
  Insert({.Intitule = u"x", .Societe = u"y"});
  form.ChosenSort.reset();
  form.InitListe();
  EXPECT_TRUE(form.Liste.Empty()) << "no option, no query";
  form.SortBy(Tri::Dates);
  EXPECT_EQ(principale.ImageMenu[10].picture, SlotPicture::ImageCandidature);
  std::filesystem::remove("Talvor.mdb");
  form.InitListe();
  EXPECT_TRUE(form.Liste.Empty());
  EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(ListTest, AClickOpensALeafAndNothingElse) {
  Insert({.Intitule = u"Maçon", .Societe = u"A", .Statut = u"NON EMISE"});
  form.InitListe();
  form.WebPaneVisible = true;
  form.OpenNode(u"Candidatures non émises");
  EXPECT_EQ(form.Num, u"");
  EXPECT_TRUE(form.WebPaneVisible);
  form.OpenNode(u"s1");
  EXPECT_EQ(form.Intitule, u"Maçon");
  EXPECT_FALSE(form.WebPaneVisible);
  // The keys of companies can pass for those of leaves.
  EXPECT_THROW(form.OpenNode(u"A5"), StoreError);
  form.OpenNode(u"s32768");
  EXPECT_EQ(dialogs.told, std::vector<Text>{Text{messages::OutOfReach}});
}

TEST_F(ListTest, TheRightButtonOpensThePopupOnALeafOnly) {
  int opened = 0;
  form.openItemMenu = [&] { ++opened; };
  Insert({.Intitule = u"Maçon", .Societe = u"A", .Statut = u"NON EMISE"});
  Insert({.Intitule = u"Maçon", .Societe = u"A", .DateEnvoi = u"01/02/2026", .Statut = u"NON EMISE"});
  form.InitListe();
  form.OpenNode(u"s1");
  EXPECT_EQ(opened, 0);
  form.BoutonDroit = true;
  form.OpenNode(u"Candidatures non émises");
  EXPECT_EQ(opened, 0);
  form.OpenNode(u"s1");
  EXPECT_EQ(opened, 1);
  EXPECT_TRUE(form.ApplyItemEnabled);
  form.OpenNode(u"s2");
  EXPECT_FALSE(form.ApplyItemEnabled) << "already sent";
}

TEST_F(ListTest, DeletingAllAsksFirstAndTheMenuAsksInItsOwnWords) {
  Insert({.Intitule = u"x", .Societe = u"y"});
  form.InitListe();
  dialogs.answer = false;
  form.ToutSupprimer();
  form.MenuSupprimer();
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(dialogs.asked,
            (std::vector<Text>{u"Confirmez-vous la suppression de toutes les candidatures ?",
                               u"Conformez-vous la suppression de toutes les candidatures ?"}));
  dialogs.answer = true;
  form.MenuSupprimer();
  EXPECT_EQ(Count(), 0);
  EXPECT_TRUE(form.Liste.Empty());
  EXPECT_EQ(principale.ImageMenu[10].picture, SlotPicture::ImageNew);
  // The rows stand in a copy, which a second deletion does not empty.
  form.ToutSupprimer();
  EXPECT_EQ(Database::OpenFile("Sauvegardes/Avant suppression.mdb", clock).CountRows(), 1);
}

TEST_F(ListTest, TheSearchPanelOpensTheStartPageOnce) {
  form.Rechercher(1);
  EXPECT_FALSE(form.WebPaneVisible);
  form.Rechercher(0);
  EXPECT_TRUE(form.WebPaneVisible);
  EXPECT_EQ(browser.location, StartPage);
  EXPECT_EQ(form.AdresseWeb, StartPage);
  browser.location = u"about:blank";
  form.Rechercher(0);
  EXPECT_EQ(browser.location, u"about:blank") << "the pane is on show already";
  form.RunAction(DetailAction::ShowBrowser);
  EXPECT_EQ(browser.location, StartPage) << "the action looks at the page only";
}

}  // namespace
}  // namespace talvor
