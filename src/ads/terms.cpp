// The terms of the post: salary, duration, date of publication and reference.

#include <algorithm>

#include "ads/phrase_reader.h"
#include "ads/rules.h"
#include "base/day.h"
#include "base/fonctionnel.h"

namespace talvor::ads {
namespace {

// A first word of eight characters is a reference on its own; a shorter one takes the words up to the
// end of the line.
constexpr std::size_t WholeReference = 8;
constexpr std::size_t LeastReference = 3;

}  // namespace

void SalaryRule(Run& run, Index I) {
  if (run.record.Salaire.empty()) ReadPhrase(SalaryReader, run.words, I, run.record);
}

void DurationRule(Run& run, Index I) {
  if (run.record.Duree.empty()) ReadPhrase(DurationReader, run.words, I, run.record);
}

void DateRule(Run& run, Index I) {
  constexpr std::size_t YearDigits = 4;
  if (!run.record.DateDiffusion.empty()) return;
  const TextView word = run.words(I);
  const TextView tail = word.substr(word.size() - std::min(word.size(), YearDigits));
  // Only a date of this year, with the year in four digits; the first one of the advertisement.
  if (ValeurNumerique(tail) == run.thisYear && DateValide(word)) run.record.DateDiffusion = word;
}

void ReferenceRule(Run& run, Index I) {
  // «DE L ANNONCE» and the like are skipped.
  const Index firstK = run.words(I + 1) == u"DE" ? 4 : 1;
  // There is no guard on the field: each trigger overwrites.
  run.record.Reference.clear();
  run.referenceAt.reset();
  static_cast<void>(run.words(I + firstK));  // the first word must exist
  run.referenceAt = {I, firstK};
}

void ReadReference(const Run& run, Run::ReferencePhrase phrase) {
  Text& reference = run.record.Reference;
  for (Index K = phrase.firstK; phrase.I + K < run.words.U(); ++K) {
    // The words behind a trigger have not been cut yet when it fires.
    const TextView word = run.words.Uncut(phrase.I + K);
    if (reference.size() > LeastReference && word == LineMark) return;
    if (K == 2 && reference.size() > WholeReference) return;
    if (word != LineMark) reference.append(word).append(u" ");
  }
}

}  // namespace talvor::ads
