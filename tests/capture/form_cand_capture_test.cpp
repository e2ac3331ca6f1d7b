#include "capture/form_cand_capture.h"

#include <gtest/gtest.h>

#include <vector>

#include "ads/ungluing.h"
#include "tests/tracking/tracking_fixture.h"
#include "tracking/form_cand_messages.h"

namespace talvor {
namespace {

class CaptureTest : public TrackingTest {
 protected:
  FormCandCapture capture{form, clock, browser};
};

const Text Advertisement =
    u"Maçon ou Caissier de nuit\r\nSociété : Acme\r\nRéférence : 4321\r\nContact : Mme Durand\r\nfin de "
    u"l'annonce\r\n";

TEST_F(CaptureTest, ATextBecomesASavedRow) {
  form.Num = u"7";
  form.Lettre = u"d'une autre";
  capture.CapturerTexte(Advertisement);
  EXPECT_EQ(form.Num, u"1");
  const Candidature row = Read(1);
  EXPECT_EQ(row.Intitule, u"Caissier De Nuit");
  EXPECT_EQ(row.Societe, u"ACME");
  EXPECT_EQ(row.NomContact, u"Durand");
  EXPECT_EQ(row.Statut, u"NON EMISE");
  EXPECT_EQ(row.DateDiffusion, u"01/03/2026");
  EXPECT_EQ(row.Lettre, u"");
}

TEST_F(CaptureTest, ATextWithoutATitleIsToldAndKeepsWhatWasFound) {
  form.WebPaneVisible = true;
  capture.CapturerTexte(u"Société : Acme\r\nx");
  EXPECT_EQ(dialogs.told, std::vector<Text>{Text{messages::NotIdentified}});
  EXPECT_EQ(form.Societe, u"ACME ");
  EXPECT_EQ(Count(), 0);
}

TEST_F(CaptureTest, AnalyserFillsTheEmptyFieldsAndSavesNothing) {
  form.Description = Advertisement;
  form.Societe = u"Durand SA";
  browser.location = u"http://www.acme.fr/1";
  capture.Analyser();
  EXPECT_EQ(form.Intitule, u"Caissier De Nuit");
  EXPECT_EQ(form.Societe, u"Durand SA");
  EXPECT_EQ(form.www, u"http://www.acme.fr/1");
  EXPECT_EQ(form.Statut, u"NON EMISE");
  EXPECT_EQ(Count(), 0);
}

TEST_F(CaptureTest, TheAnalysisUsesTheEndMarkersOfTheForm) {
  form.TermFin = u"1fin de l'annonce\r\n";
  form.Description = Text(100, u'x') + u"\r\n" + Advertisement;
  capture.Analyser();
  EXPECT_FALSE(Contains(form.Description, u"fin de l'annonce"));
}

TEST_F(CaptureTest, ThePasteWatchSeesMoreThanFiftyCharacters) {
  form.Description = u"Vendeur\r\n" + Text(41, u'x');
  capture.WatchPaste();
  EXPECT_EQ(form.Intitule, u"") << "fifty characters are typing";
  form.Description += u"\r\n";
  capture.WatchPaste();
  EXPECT_EQ(form.Intitule, u"Vendeur");
  EXPECT_EQ(form.DescriptionConnue, form.Description);
  EXPECT_EQ(form.Statut, u"") << "the defaults wait for the save";
  form.Intitule.clear();
  capture.WatchPaste();
  EXPECT_EQ(form.Intitule, u"") << "the description is known";
}

TEST(DecollerMots, PartsGluedWordsAsFarAsTheFirstLengthReaches) {
  EXPECT_EQ(DecollerMots(u"MaçonLyonParis fin"), u"Maçon Lyon Paris fin");
  EXPECT_EQ(DecollerMots(u"étéÉté maçonÉtat aB"), u"étéÉté maçonÉtat a B") << "letters without accents only";
  // Ten characters, nine visits, of which the blanks put in take four: the last pair stays glued.
  EXPECT_EQ(DecollerMots(u"aBaBaBaBaB"), u"a Ba Ba BaBaB");
  EXPECT_EQ(DecollerMots(u""), u"");
  EXPECT_EQ(DecollerMots(u"aB"), u"a B");
}

}  // namespace
}  // namespace talvor
