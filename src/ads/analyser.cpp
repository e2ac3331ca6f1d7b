#include "ads/analyser.h"

#include "ads/rules.h"
#include "base/fonctionnel.h"

namespace talvor {
namespace {

using namespace ads;

constexpr TextView GenderMark = u"H/F";

// A cut nearer to the start than this would cut into the advertisement itself. 1-based.
constexpr std::size_t FirstCutPosition = 100;

bool BeginsWithDigit(TextView word) { return !word.empty() && word.front() >= u'0' && word.front() <= u'9'; }

// What lies far before the gender mark of the title is page furniture: the text begins at the line end
// or the colon in front of it, or at position 10 when there is none.
void CutStart(Text& texte) {
  constexpr std::size_t Earliest = 9;  // 0-based
  std::size_t p = Find(texte, GenderMark);
  if (p == Text::npos || p + 1 <= FirstCutPosition) return;
  while (p > Earliest && texte[p] != u':' && texte.compare(p, LineEnd.size(), LineEnd) != 0) --p;
  texte.erase(0, p);
}

// The end markers cut what lies behind them, each on the text that the ones before it have left.
void CutEnd(Text& texte, TextView termFin) {
  if (termFin.empty()) return;
  for (const TextView row : Split(termFin, LineEnd)) {
    if (ValeurNumerique(row) != 1) continue;
    const std::size_t p = Find(texte, row.substr(1));
    if (p != Text::npos && p + 1 > FirstCutPosition) texte.erase(p);
  }
}

// On each word the title, then what a number may be, then what a keyword asks for. A rule looks at the
// record as those before it have left it.
void Walk(Run& run) {
  for (Index I = 1; I < run.words.U(); ++I) {
    run.words.CutAtSlash(I);
    TitleRule(run, I);
    if (BeginsWithDigit(run.words(I))) {
      DateRule(run, I);
      FiveNumbersRule(run, I);
      PostalCodeRule(run, I);
    }
    FireTrigger(run, I);
  }
}

// Page furniture in front of the title, in an advertisement that the start cut could not see.
void CutDescription(AdFields& record) {
  constexpr std::size_t LastKept = 10;  // 1-based
  if (Contains(record.Description, GenderMark)) return;
  const std::size_t p = FindSansAccents(record.Description, record.Intitule);
  if (p != Text::npos && p + 1 > LastKept) record.Description.erase(0, p);
}

void RunStages(Text& texte, AdFields& record, const AdContext& context) {
  CutStart(texte);
  CutEnd(texte, context.TermFin);
  record.Description = ReplaceAll(texte, u"\r\n\r\n", LineEnd);
  FindEmail(texte, record);
  // A dash parts a title from what follows it, as a line end does.
  if (Contains(texte, u" - ")) texte = ReplaceAll(texte, u" - ", LineEnd);
  texte = Normaliser(texte);
  FindContract(texte, record);

  Run run{.record = record,
          .context = context,
          .words = Words{texte},
          .thisYear = CivilDateOf(context.today).year};
  try {
    Walk(run);
  } catch (const AnalysisFailure&) {
    FinishPendingReadings(run);
    throw;
  }
  FinishPendingReadings(run);
  FindCompanyInWords(run);
  FindOrigin(run);
  FillCompanyAndOrigin(record);
  CutDescription(record);
}

}  // namespace

namespace ads {

void FinishPendingReadings(Run& run) {
  if (run.contactAt) ReadContact(run, *run.contactAt);
  if (run.referenceAt) ReadReference(run, *run.referenceAt);
}

}  // namespace ads

void AnalyserAnnonce(Text& texte, AdFields& record, const AdContext& context) {
  try {
    RunStages(texte, record, context);
  } catch (const AnalysisFailure&) {
    // The record stands as the run has left it.
  }
}

}  // namespace talvor
