#include "reports/printed_reports.h"

#include "base/code_page.h"
#include "base/file_address.h"
#include "base/line_file.h"

namespace talvor {
namespace {

constexpr TextView PageNotReady = u"Un problème est survenu durant la constitution du fichier à imprimer";

// The first characters of an advertisement that the proof shows, markup of line ends included.
constexpr std::size_t DescriptionShown = 200;

void Line(Text& page, std::initializer_list<TextView> pieces) {
  for (const TextView piece : pieces) page += piece;
  page += LineEnd;
}

void ListHead(Text& page, TextView today) {
  Line(page, {u"<html><font face='Arial' size=5><b>Liste des candidatures</b></font><font face='Arial' "
              u"size=1>&nbsp;&nbsp;en date du ",
              today, u"<hr><table>"});
  Line(page, {u"<tr BGCOLOR=#EEEEEE><td><b>Statut</td><td><b>Date de "
              u"diffusion</td><td><b>Société</td><td><b>Intitulé"
              u"</td><td><b>Origine</td><td><b>Référence</td></tr> "});
}

// Rows have a closing tag only, in both reports.
void ListRow(Text& page, const RowView& row) {
  Line(page, {u"<td valign=top><FONT SIZE=2>", row.Value(&Candidature::Statut),
              u"</td><td valign=top><FONT SIZE=2>", row.Value(&Candidature::DateDiffusion),
              u"</td><td valign=top><FONT SIZE=2>", row.Value(&Candidature::Societe),
              u"</td><td valign=top><FONT SIZE=2>", row.Value(&Candidature::Intitule),
              u"</td><td><font size=1>", row.Value(&Candidature::Origine), u"</font></td><td><font size=2>",
              row.Value(&Candidature::Reference), u"</font></td></tr>"});
}

void ProofHead(Text& page, const Identity& identity) {
  Line(page,
       {u"<html><font face='Arial' size=5><b>Activité de recherche d'emploi</b> - ", identity.Prenom, u" ",
        identity.Nom, u"</font><font face='Arial' size=1>&nbsp;&nbsp;sur les 90 derniers jours<hr><table>"});
  Line(
      page,
      {u"<tr BGCOLOR=#EEEEEE><td><b>Date</td><td><b>Action</td><td><b>Etat de la "
       u"candidature</td><td><b>Société"
       u"</td><td><b>Intitulé du poste</td><td><b>Origine de l'annonce</td><td><b>Référence de l'annonce</td>"
       u"<td><b>Remarques</td></tr> "});
}

// A cut may fall inside the markup of a line end. The markup is longer than what it stands for, so nothing
// behind a line end that begins within the cut can show.
Text BeginningOf(TextView description) {
  const TextView enough = description.substr(0, DescriptionShown + LineEnd.size());
  return ReplaceAll(enough, LineEnd, u"<br>").substr(0, DescriptionShown);
}

void ProofRow(Text& page, const RowView& row) {
  Line(page, {u"<td valign=top><FONT SIZE=2>", row.Value(&Candidature::DateEnvoi),
              u"</td><td valign=top><FONT SIZE=2>Envoi de la candidature</td><td valign=top><FONT SIZE=2>",
              row.Value(&Candidature::Statut), u"</td><td valign=top><FONT SIZE=2>",
              row.Value(&Candidature::Societe), u"</td><td valign=top><FONT SIZE=2>",
              row.Value(&Candidature::Intitule), u"</td><td valign=top><font size=1>",
              row.Value(&Candidature::Origine), u"</font></td><td valign=top><font size=2>",
              row.Value(&Candidature::Reference), u"</font></td><td><font size=2>",
              row.Value(&Candidature::Remarques), u"<br><font size=1>Début de l'annonce : ",
              BeginningOf(row.Value(&Candidature::Description)), u"<hr></font></td></tr>"});
}

// An interview on or after the day of the diffusion is an entry of its own.
void InterviewRow(Text& page, const RowView& row) {
  const Text date = row.Value(&Candidature::DateRDV);
  const auto interview = ParseDate(date);
  const auto published = ParseDate(row.Value(&Candidature::DateDiffusion));
  if (!interview || !published || *interview < *published) return;
  Line(page, {u"<td valign=top><FONT SIZE=2>", date,
              u"</td><td valign=top><FONT SIZE=2>Entretien</td><td valign=top><FONT SIZE=2>-</td><td "
              u"valign=top><FONT "
              u"SIZE=2>-</td><td valign=top><FONT SIZE=2>-</td><td><font size=1>-</font></td><td><font "
              u"size=2>-</font>"
              u"</td><td><font size=2>-</font></td></tr>"});
}

}  // namespace

void WriteReport(Database& database, ReportMode mode, const Identity& identity, Day day,
                 const std::function<void(TextView piece)>& out) {
  const Text today = DateText(day);
  Text line;
  bool begun = false;
  const auto hand = [&line, &out] {
    if (!line.empty()) out(line);
    line.clear();
  };
  database.WalkRows(RowOrder::Unsorted, [&](const RowView& row) {
    if (mode == ReportMode::Liste) {
      if (!begun) ListHead(line, today);
      ListRow(line, row);
    } else {
      if (!begun) ProofHead(line, identity);
      ProofRow(line, row);
      InterviewRow(line, row);
    }
    begun = true;
    hand();
  });
  if (begun)
    Line(line, {u"</table><hr></font><FONT face='Arial' SIZE=1> Edité le ", today,
                u" depuis Talvor</FONT></html>"});
  hand();
}

PrintedReports::PrintedReports(const Principale& principale, const Clock& clock,
                               const Environment& environment, Dialogs& dialogs, Shell& shell,
                               PagePreview& preview)
    : principale_(principale),
      clock_(clock),
      environment_(environment),
      dialogs_(dialogs),
      shell_(shell),
      preview_(preview) {}

std::filesystem::path PrintedReports::WritePage(ReportMode mode) const {
  Database database = Database::Open(clock_);
  const std::filesystem::path file = PathOf(environment_.Variable(u"temp")) / "ImpTalvor.html";
  const auto written = WritePieces(file, [&](const PieceSink& write) {
    WriteReport(database, mode, principale_, clock_.Today(),
                [&write](TextView line) { write(ToCodePage(line)); });
  });
  if (written.Failed()) throw std::filesystem::filesystem_error("report", file, written.Code());
  return file;
}

bool PrintedReports::WaitForPage() {
  constexpr int LongestWaits = 50;
  constexpr int WaitMilliseconds = 100;
  for (int waits = 0; !preview_.IsComplete();) {
    shell_.PumpEvents();
    shell_.Wait(WaitMilliseconds);
    if (++waits > LongestWaits) return false;
  }
  return true;
}

void PrintedReports::ImprimerListe(ReportMode mode) {
  preview_.Navigate(FileAddress(WritePage(mode)));
  if (WaitForPage())
    preview_.Preview();
  else
    dialogs_.Tell(PageNotReady);
}

}  // namespace talvor
