#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "base/line_file.h"
#include "reports/printed_reports.h"
#include "reports/statistics.h"
#include "tests/tracking/tracking_fixture.h"

namespace talvor {
namespace {

class FakePreview : public PagePreview {
 public:
  void Navigate(TextView where) override { address = where; }
  bool IsComplete() const override { return ++asked > completeAfter; }
  void Preview() override { previewed = true; }

  Text address;
  int completeAfter = 3;
  mutable int asked = 0;
  bool previewed = false;
};

class ReportsTest : public TrackingTest {
 protected:
  ReportsTest() { environment.values[u"temp"] = *TextOf(scratch.Path()); }

  Text Page(ReportMode mode) {
    Database database = Open();
    Text page;
    WriteReport(database, mode, principale, clock.today, [&page](TextView piece) { page += piece; });
    return page;
  }

  FakeEnvironment environment;
  FakePreview preview;
  PrintedReports reports{principale, clock, environment, dialogs, shell, preview};
};

TEST_F(ReportsTest, TheListHoldsEveryRowInItsOwnMarkup) {
  Insert({.Intitule = u"Maçon",
          .Societe = u"A & <b>",
          .Origine = u"presse",
          .DateDiffusion = u"05/02/2026",
          .Reference = u"R1",
          .Statut = u"NON EMISE"});
  Insert({.Intitule = u"Éclusier", .Societe = u"B"});
  EXPECT_EQ(
      Page(ReportMode::Liste),
      u"<html><font face='Arial' size=5><b>Liste des candidatures</b></font><font face='Arial' "
      u"size=1>&nbsp;&nbsp;en date du "
      u"01/03/2026<hr><table>\r\n"
      u"<tr BGCOLOR=#EEEEEE><td><b>Statut</td><td><b>Date de "
      u"diffusion</td><td><b>Société</td><td><b>Intitulé</td><td><b>Origine"
      u"</td><td><b>Référence</td></tr> \r\n"
      u"<td valign=top><FONT SIZE=2>NON EMISE</td><td valign=top><FONT SIZE=2>05/02/2026</td><td "
      u"valign=top><FONT SIZE=2>A & <b></td>"
      u"<td valign=top><FONT SIZE=2>Maçon</td><td><font size=1>presse</font></td><td><font "
      u"size=2>R1</font></td></tr>\r\n"
      u"<td valign=top><FONT SIZE=2></td><td valign=top><FONT SIZE=2></td><td valign=top><FONT SIZE=2>B</td>"
      u"<td valign=top><FONT SIZE=2>Éclusier</td><td><font size=1></font></td><td><font "
      u"size=2></font></td></tr>\r\n"
      u"</table><hr></font><FONT face='Arial' SIZE=1> Edité le 01/03/2026 depuis Talvor</FONT></html>\r\n");
}

TEST_F(ReportsTest, TheProofHoldsOldRowsAndInterviews) {
  principale.Nom = u"Durand";
  Insert({.Intitule = u"Maçon",
          .Description = u"un\r\ndeux",
          .Societe = u"A",
          .Origine = u"presse",
          .DateDiffusion = u"05/02/2001",
          .DateRDV = u"05/02/2001",
          .DateEnvoi = u"06/02/2001",
          .Reference = u"R1",
          .Statut = u"EMBAUCHE",
          .Remarques = u"vu"});
  EXPECT_EQ(
      Page(ReportMode::Justificatif),
      u"<html><font face='Arial' size=5><b>Activité de recherche d'emploi</b> -  Durand</font><font "
      u"face='Arial' "
      u"size=1>&nbsp;&nbsp;sur les 90 derniers jours<hr><table>\r\n"
      u"<tr BGCOLOR=#EEEEEE><td><b>Date</td><td><b>Action</td><td><b>Etat de la "
      u"candidature</td><td><b>Société</td><td><b>Intitulé du "
      u"poste</td><td><b>Origine de l'annonce</td><td><b>Référence de "
      u"l'annonce</td><td><b>Remarques</td></tr> \r\n"
      u"<td valign=top><FONT SIZE=2>06/02/2001</td><td valign=top><FONT SIZE=2>Envoi de la "
      u"candidature</td><td valign=top><FONT "
      u"SIZE=2>EMBAUCHE</td><td valign=top><FONT SIZE=2>A</td><td valign=top><FONT SIZE=2>Maçon</td><td "
      u"valign=top><font size=1>presse"
      u"</font></td><td valign=top><font size=2>R1</font></td><td><font size=2>vu<br><font size=1>Début de "
      u"l'annonce : un<br>deux<hr>"
      u"</font></td></tr>\r\n"
      u"<td valign=top><FONT SIZE=2>05/02/2001</td><td valign=top><FONT SIZE=2>Entretien</td><td "
      u"valign=top><FONT SIZE=2>-</td><td "
      u"valign=top><FONT SIZE=2>-</td><td valign=top><FONT SIZE=2>-</td><td><font "
      u"size=1>-</font></td><td><font size=2>-</font></td>"
      u"<td><font size=2>-</font></td></tr>\r\n"
      u"</table><hr></font><FONT face='Arial' SIZE=1> Edité le 01/03/2026 depuis Talvor</FONT></html>\r\n");
}

TEST_F(ReportsTest, AnInterviewBeforeTheDiffusionOrWithoutADateIsNoEntry) {
  Insert({.Intitule = u"x", .DateDiffusion = u"06/02/2026", .DateRDV = u"05/02/2026"});
  Insert({.Intitule = u"x", .DateRDV = u"05/02/2026"});
  EXPECT_FALSE(Contains(Page(ReportMode::Justificatif), u"Entretien"));
}

TEST_F(ReportsTest, TwoHundredCharactersOfTheAdvertisementCountTheirLineEndsAsMarkup) {
  Insert({.Description = Text(198, u'x') + u"\r\nsuite"});
  EXPECT_TRUE(Contains(Page(ReportMode::Justificatif), u"annonce : " + Text(198, u'x') + u"<b<hr>"));
}

TEST_F(ReportsTest, ThePageIsWrittenInTheCodePageAndPreviewedOnceComplete) {
  Insert({.Intitule = u"Éclusier \U0001F603"});
  std::ofstream{"ImpTalvor.html"} << "ancien";
  reports.ImprimerListe(ReportMode::Liste);
  const std::string page = *ReadBytes("ImpTalvor.html");
  EXPECT_NE(page.find("\xC9"
                      "clusier &#128515;"),
            std::string::npos);
  EXPECT_TRUE(preview.address.starts_with(u"file:///")) << ToUtf8(preview.address);
  EXPECT_TRUE(preview.previewed);
  EXPECT_EQ(shell.waited, 300);
}

TEST_F(ReportsTest, APageThatDoesNotComeIsToldAndNotPrinted) {
  preview.completeAfter = 1000;
  reports.ImprimerListe(ReportMode::Justificatif);
  EXPECT_EQ(dialogs.told,
            std::vector<Text>{u"Un problème est survenu durant la constitution du fichier à imprimer"});
  EXPECT_FALSE(preview.previewed);
  EXPECT_EQ(shell.waited, 5100);
  EXPECT_EQ(ReadBytes("ImpTalvor.html"), "") << "no candidature, an empty page";
}

TEST_F(ReportsTest, AFolderThatCannotBeWrittenIsAFailure) {
  environment.values[u"temp"] = u"absent";
  EXPECT_THROW(reports.ImprimerListe(ReportMode::Liste), std::filesystem::filesystem_error);
}

class StatisticsTest : public TrackingTest {
 protected:
  FormStat stat{clock};
};

// The cells of a month as its weeks, computed on another road: by walking the days from a known Monday.
std::vector<std::string> MonthCells(int year, int month) {
  std::vector<std::string> cells(FormStat::CellsOfAMonth);
  const Day monday{DayOf({2024, 1, 1})->serial};
  const Day first = *DayOf({year, month, 1});
  std::size_t cell = static_cast<std::size_t>(((first.serial - monday.serial) % 7 + 7) % 7);
  for (Day day = first; CivilDateOf(day).month == month; ++day.serial)
    cells[cell++] = std::to_string(CivilDateOf(day).day);
  return cells;
}

TEST_F(StatisticsTest, BothCalendarsAreWholeForEveryFirstAndLastOfAMonth) {
  for (Day day = *DayOf({2024, 1, 1}); CivilDateOf(day).year <= 2030; ++day.serial) {
    const CivilDate civil = CivilDateOf(day);
    const bool last = CivilDateOf(Day{day.serial + 1}).day == 1;
    if (civil.day != 1 && !last) continue;
    clock.today = day;
    stat.Charger();
    auto expected = MonthCells(civil.year, civil.month);
    const auto next = MonthCells(civil.month == 12 ? civil.year + 1 : civil.year, civil.month % 12 + 1);
    expected.insert(expected.end(), next.begin(), next.end());
    for (std::size_t i = 0; i < expected.size(); ++i)
      ASSERT_EQ(ToUtf8(stat.Jour[i].text), expected[i]) << ToUtf8(DateText(day)) << " cell " << i;
    const auto todays =
        std::count_if(stat.Jour.begin(), stat.Jour.end(), [](const auto& cell) { return cell.today; });
    ASSERT_EQ(todays, 1);
    ASSERT_TRUE(stat.Jour[*stat.IndexJour(day)].today);
  }
}

TEST_F(StatisticsTest, TitlesTurnTheYearAndJulyIsTheSecondJui) {
  clock.today = *DayOf({2026, 12, 1});
  stat.Charger();
  EXPECT_EQ(stat.MoisCal1, u"DEC 2026 ");
  EXPECT_EQ(stat.MoisCal2, u"JAN 2027 ");
  EXPECT_EQ(stat.DateJour, u"Nous sommes le 01/12/2026");
  clock.today = *DayOf({2026, 6, 30});
  stat.Charger();
  EXPECT_EQ(stat.MoisCal1 + stat.MoisCal2, u"JUI 2026 JUI 2026 ");
}

TEST_F(StatisticsTest, CountsSaturateTheirBarsAndForeignStatusesCountNowhere) {
  for (int i = 0; i < 40; ++i) Insert({.Statut = u"EMBAUCHE"});
  Insert({.Statut = u"ENTRETIEN - EMBAUCHE"});
  Insert({.Statut = u"ENTRETIEN A EFFECTUER"});
  stat.Charger();
  std::string counts;
  for (const auto& row : stat.Statuts) counts += ToUtf8(row.Nb) + ":" + std::to_string(row.Graph) + " ";
  EXPECT_EQ(counts, "0:1 0:1 0:1 0:1 0:1 0:1 0:1 0:1 1:101 40:4000 ");
  EXPECT_EQ(stat.Statuts[8].Statut, u"ENTRETIEN - EMBAUCHE");
}

TEST_F(StatisticsTest, InterviewsFromTodayOnAreListedAndMarked) {
  const auto interview = [&](TextView company, TextView date) {
    Insert({.Societe = Text{company}, .DateRDV = Text{date}});
  };
  interview(u"Tard", u"02/04/2026");
  interview(u"Hier", u"28/02/2026");
  interview(u"Jour", u"01/03/2026");
  interview(u"Loin", u"15/07/2026");
  interview(u"An", u"20/03/2027");
  interview(u"Sans", u"");
  stat.Charger();
  EXPECT_EQ(
      stat.RDV,
      u"Entretien avec la société Tard le 02/04/2026\r\nEntretien avec la société Jour le 01/03/2026\r\n"
      u"Entretien avec la société Loin le 15/07/2026\r\nEntretien avec la société An le 20/03/2027\r\n");
  std::string marked;
  for (std::size_t i = 0; i < stat.Jour.size(); ++i)
    if (stat.Jour[i].interview) marked += std::to_string(i) + "=" + ToUtf8(stat.Jour[i].text) + " ";
  // March 2026 begins on a Sunday, April on a Wednesday; March 2027 on a Monday, so that its 20th falls
  // into the cell 19 of this month.
  EXPECT_EQ(marked, "6=1 19=14 45=2 ");
  stat.Charger();
  EXPECT_EQ(std::count(stat.RDV.begin(), stat.RDV.end(), u'\n'), 4) << "computed anew, not added";
}

}  // namespace
}  // namespace talvor
