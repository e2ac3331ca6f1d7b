// The date on which the advertisement was published.

#include <algorithm>

#include "ads/rules.h"
#include "base/day.h"
#include "base/fonctionnel.h"

namespace talvor::ads {

void DateRule(Run& run, Index I) {
  constexpr std::size_t YearDigits = 4;
  if (!run.record.DateDiffusion.empty()) return;
  const TextView word = run.words(I);
  const TextView tail = word.substr(word.size() - std::min(word.size(), YearDigits));
  // Only a date of this year, with the year in four digits; the first one of the advertisement.
  if (ValeurNumerique(tail) == run.thisYear && DateValide(word)) run.record.DateDiffusion = word;
}

}  // namespace talvor::ads
