#include "capture/form_cand_web.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "base/line_file.h"
#include "tests/capture/web_fixture.h"
#include "tracking/form_cand_messages.h"

namespace talvor {
namespace {

constexpr TextView Board = u"http://board.example/1";

TEST_F(WebTest, WithoutASelectionTheWholePageBecomesANewRow) {
  form.Num = u"7";
  form.Lettre = u"d'une autre";
  clipboard.text = u"copied earlier";
  Show(Board, {.text = u"Caissier de nuitSociété : Acme\r\n" + AdvertisementPage});
  web.CaptureSelection();
  EXPECT_EQ(form.Num, u"1");
  EXPECT_EQ(Read(1).Lettre, u"");
  EXPECT_EQ(form.www, Board);
  EXPECT_TRUE(form.Description.starts_with(u"Caissier de nuit Société")) << "glued words are parted";
  EXPECT_EQ(form.DescriptionConnue, form.Description);
  EXPECT_EQ(signalled, std::vector<Text>{u"s1"});
  web.CaptureSelection();
  EXPECT_EQ(Count(), 2) << "a capture never writes over the row on show";
}

TEST_F(WebTest, ASelectionIsCapturedInsteadOfThePage) {
  Show(Board, {.text = u"Boucher\r\nSociété : Autre\r\n"});
  browser.onCopy = [this] { clipboard.text = AdvertisementPage; };
  web.CaptureSelection();
  EXPECT_EQ(Read(1).Societe, u"ACME");
  EXPECT_EQ(form.DescriptionConnue, u"") << "only a page makes the description known";
  browser.onCopy = [this] { clipboard.text = u"Société : Sans Titre\r\nx"; };
  web.CaptureSelection();
  EXPECT_EQ(dialogs.told, std::vector<Text>{Text{messages::NotIdentified}});
  EXPECT_EQ(form.Societe, u"SANS TITRE ") << "the detail keeps what was found";
  EXPECT_EQ(Count(), 1);
}

TEST_F(WebTest, APageWithoutATitleIsToldAndNotSaved) {
  web.CaptureSelection();
  ASSERT_EQ(dialogs.told.size(), 1u);
  EXPECT_TRUE(dialogs.told[0].starts_with(u"Talvor a des difficultés pour identifier l'annonce"));
  EXPECT_TRUE(signalled.empty());
  EXPECT_EQ(Count(), 0);
}

TEST_F(WebTest, ABaseThatRefusesLosesNothingOfTheCapture) {
  std::filesystem::remove(workspace_paths::Database());
  Show(Board, {.text = AdvertisementPage});
  web.CaptureSelection();
  EXPECT_EQ(form.Intitule, u"Caissier De Nuit");
  EXPECT_EQ(form.Num, u"");
}

TEST_F(WebTest, ASecondClickDuringACaptureDoesNothing) {
  Show(Board, {.text = AdvertisementPage});
  browser.whileReading = [this] { web.CaptureSelection(); };
  web.CaptureSelection();
  EXPECT_EQ(Count(), 1);
}

class SiteRule : public WebTest {
 protected:
  static constexpr TextView Ad = u"https://cadres.apec.fr/offres/12?x=fr/";
  static constexpr TextView Company = u"https://cadres.apec.fr/MesOffres/coord?a=1";

  SiteRule() {
    Show(Ad,
         {.text = AdvertisementPage,
          .markup = Text(200, u'x') + u"<a href=\"/MesOffres/coord?a=1\" id=\"ForwardToCoordEntreprise\">"});
    browser.pages[Text{Company}] = {.text = u"Référence : 9876\r\n12 rue Haute\r\n69002 Lyon\r\n",
                                    .loading = 3};
  }
};

TEST_F(SiteRule, TheDetailsOfTheCompanyAreFetchedFromItsPage) {
  web.CaptureSelection();
  EXPECT_EQ(browser.visited, std::vector<Text>{Text{Company}});
  EXPECT_EQ(shell.waited, 3 * 50 + 100);
  EXPECT_EQ(browser.calls, std::vector<Text>{u"GoBack"});
  EXPECT_EQ(Count(), 1) << "the same row";
  const Candidature row = Read(1);
  EXPECT_EQ(row.CP, u"69002");
  EXPECT_TRUE(Contains(row.Description, u"fin de l'annonce"));
  EXPECT_TRUE(Contains(row.Description, u"12 rue Haute"));
  EXPECT_EQ(signalled, std::vector<Text>{u"s1"});
}

TEST_F(SiteRule, StandsOnTheBoardTheMissingPostcodeAndTheMark) {
  form.AdresseWeb = u"https://cadres.example.fr/offres/12";
  web.CaptureSelection();
  form.AdresseWeb = Ad;
  browser.pages[Text{Ad}].text += u"12 rue Haute\r\n69002 Lyon\r\n";
  web.CaptureSelection();
  EXPECT_EQ(Read(2).CP, u"69002");
  browser.pages[Text{Ad}] = {.text = AdvertisementPage, .markup = u"<p>rien</p>"};
  web.CaptureSelection();
  EXPECT_TRUE(browser.visited.empty());
  EXPECT_EQ(signalled.size(), 3u);
}

TEST_F(SiteRule, APageThatNeverAnswersIsLeftByStopByCloseAndByAnotherRow) {
  browser.pages[Text{Company}].loading = -1;
  shell.whileWaiting = [this] {
    if (shell.waited >= 5000) web.StopLoading();
  };
  web.CaptureSelection();
  EXPECT_EQ(browser.calls, std::vector<Text>{u"Stop"}) << "stopped, and not gone back from the advertisement";
  EXPECT_FALSE(Contains(Read(1).Description, u"12 rue Haute"));
  EXPECT_EQ(signalled.size(), 1u);

  browser.location = Ad;
  browser.pages[Text{Company}].loading = 1;
  browser.loading = 0;
  shell.whileWaiting = [this] { form.ChargerCandidature(1); };
  web.CaptureSelection();
  EXPECT_FALSE(Contains(Read(1).Description, u"12 rue Haute")) << "the row opened meanwhile is another one";

  browser.location = Ad;
  browser.pages[Text{Company}].loading = -1;
  browser.loading = 0;
  shell.whileWaiting = [this] { web.Close(); };
  signalled.clear();
  web.CaptureSelection();
  EXPECT_TRUE(signalled.empty());
  EXPECT_EQ(Count(), 3) << "the candidatures themselves stand";
}

// A page of so many terms of an advertisement, behind "REFERENCE", which holds "REF" as well.
FakePage TermsPage(std::size_t terms) {
  Text text = u"page";
  for (std::size_t i = 0; i < terms; ++i) text.append(u" ").append(MotsValid[i + 2]);
  return {.text = text + u" fin"};
}

TEST_F(WebTest, ALoadedPageOpensTheStripStepByStepAndShowsItsAddress) {
  Show(Board, TermsPage(12));
  form.AdresseWeb = u"typed";
  web.EvaluerPage();
  EXPECT_EQ(form.AdresseWeb, Board);
  EXPECT_EQ(web.StripPlace, 660);
  EXPECT_DOUBLE_EQ(web.Niveau, 700);
  EXPECT_EQ(shell.waited, 500 + 22 * 20);
  EXPECT_TRUE(std::is_sorted(tops.begin(), tops.end()));
  EXPECT_EQ(tops[2], 360) << "fifteen at a time";

  Show(u"http://board.example/liste", TermsPage(4));
  web.EvaluerPage();
  EXPECT_EQ(web.StripPlace, 330);
  EXPECT_DOUBLE_EQ(web.Niveau, 1);
  web.OpenStrip();
  EXPECT_EQ(web.StripPlace, 660) << "the strip opens by hand";
}

TEST_F(WebTest, APageLoadedDuringARatingIsRatedBehindIt) {
  Show(Board, TermsPage(12));
  int depth = 0;
  int loads = 0;
  shell.whileWaiting = [&] {
    EXPECT_EQ(depth, 0) << "ratings do not pile up";
    ++depth;
    if (++loads == 1) {
      Show(u"http://board.example/2", TermsPage(3));
      web.EvaluerPage();
    }
    --depth;
  };
  web.EvaluerPage();
  EXPECT_EQ(form.AdresseWeb, u"http://board.example/2");
  EXPECT_DOUBLE_EQ(web.Niveau, 1);
  shell.whileWaiting = [this] { web.Close(); };
  Show(Board, TermsPage(12));
  web.EvaluerPage();
  EXPECT_EQ(web.StripPlace, 330) << "a form that is gone moves no more";
}

TEST_F(WebTest, AWindowOutsideIsOfferedAndBroughtIn) {
  documents.titles = {u"Courrier", u"http://outside.example/a - Navigateur", u"http://later.example/ x"};
  form.WebPaneVisible = false;
  web.WatchPasteAndWindows();
  EXPECT_FALSE(web.BringLinkVisible) << "watched with the pane only";
  form.WebPaneVisible = true;
  web.WatchPasteAndWindows();
  EXPECT_TRUE(web.BringLinkVisible);
  web.BringOutsidePage();
  EXPECT_EQ(form.AdresseWeb, u"http://outside.example/a");
  EXPECT_EQ(browser.location, u"http://outside.example/a");
  web.WatchPasteAndWindows();
  EXPECT_TRUE(web.BringLinkVisible) << "nothing hides it but an empty address";
  documents.titles = {u"http://sansblanc.example/"};
  web.WatchPasteAndWindows();
  EXPECT_EQ(web.OutsideAddress, u"http://outside.example/a") << "a title without a blank gives none";
  documents.titles = {u" http"};
  web.WatchPasteAndWindows();
  EXPECT_FALSE(web.BringLinkVisible);
}

TEST_F(WebTest, ThePrefillTakesTheElementsOneToAThousand) {
  principale.Nom = u"Durand";
  principale.Email = u"d@a.example";
  FakePage page;
  page.elements.assign(1002, {});
  for (const std::size_t i : {0u, 1u, 1000u, 1001u}) page.elements[i] = {u"Nom", u""};
  page.elements[2] = {u"MotDePasse", u""};
  page.elements[3] = {u"", u"message"};
  page.elements[4] = {u"rien", u"email"};
  Show(Board, page);
  web.askApplyForm = [] { return ApplyTexts{u"moi@a.example", u"Madame"}; };
  web.PrefillForm();
  const auto filled = [this] {
    std::string text;
    for (const auto& order : browser.set) text += std::to_string(order.index) + ToUtf8(order.value) + ";";
    return text;
  };
  EXPECT_EQ(filled(), "1Durand;3;1000Durand;") << "without the apply form the letter is emptied";
  shell.visible.insert(u"FormPostuler");
  web.PrefillForm();
  EXPECT_EQ(filled(), "1Durand;3Madame;1000Durand;");
  principale.Nom.clear();
  web.PrefillForm();
  EXPECT_EQ(filled(), "1;3Madame;1000;") << "without a CV the fields are emptied";
}

TEST_F(WebTest, AKnownFormIsFilledWhileTheApplyFormIsOnScreen) {
  web.askApplyForm = [] { return ApplyTexts{u"moi@a.example", u"Madame"}; };
  web.EvaluerPage();
  EXPECT_TRUE(browser.named.empty());
  shell.visible.insert(u"FormPostuler");
  web.EvaluerPage();
  EXPECT_EQ(browser.named,
            (std::map<Text, Text>{
                {u"EmailCV", u"moi@a.example"}, {u"expediteur", u"moi@a.example"}, {u"message", u"Madame"}}));
}

TEST_F(WebTest, TheDirectoryLeadsThePane) {
  ASSERT_FALSE(
      WriteBytes("Listesites.txt", "UN DEUX   http://a.example/?u=http://b/\r\nsans/http\r\n").Failed());
  web.Charger();
  web.ToggleSiteList();
  EXPECT_TRUE(web.SiteListVisible);
  EXPECT_EQ(shell.focus, u"FormCand.AdresseWeb");
  web.OpenSite(0);
  EXPECT_FALSE(web.SiteListVisible);
  EXPECT_EQ(browser.location, u"http://a.example/?u=http://b/");
  EXPECT_EQ(form.AdresseWeb, browser.location);
  web.ToggleSiteList();
  web.OpenSite(7);
  EXPECT_TRUE(web.SiteListVisible) << "no such row";
  form.www = u"http://www.example/";
  form.WebPaneVisible = false;
  web.OpenAdvertisement();
  EXPECT_TRUE(form.WebPaneVisible);
  EXPECT_EQ(browser.location, u"http://www.example/");
  web.GoToStartPage();
  EXPECT_EQ(browser.location, principale.AdresseWeb);
}

TEST_F(WebTest, TheFileOfSitesIsRebuiltFromItsPage) {
  const Text page = principale.AdresseWeb + u"listesites.htm";
  browser.pages[page] = {.text = u"UN http://a.example/ DEUX http://b.example/", .loading = 2};
  EXPECT_FALSE(web.MajListeSites().Failed());
  EXPECT_EQ(ReadBytes("Listesites.txt"), "UN   \thttp://a.example/\r\nDEUX   \thttp://b.example/");
  browser.pages[page] = {.text = u"", .loading = -1};
  shell.whileWaiting = [this] { web.StopLoading(); };
  EXPECT_FALSE(web.MajListeSites().Failed());
  EXPECT_NE(ReadBytes("Listesites.txt"), "") << "a page that never came replaces nothing";
  browser.pages[page].loading = 1;
  shell.whileWaiting = {};
  EXPECT_FALSE(web.MajListeSites().Failed());
  EXPECT_NE(ReadBytes("Listesites.txt"), "") << "nor does one that could not be loaded";
}

}  // namespace
}  // namespace talvor
