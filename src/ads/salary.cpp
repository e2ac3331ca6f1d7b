// The salary behind its label.

#include "ads/phrase_reader.h"
#include "ads/rules.h"

namespace talvor::ads {

void SalaryRule(Run& run, Index I) {
  if (run.record.Salaire.empty()) ReadPhrase(SalaryReader, run.words, I, run.record);
}

}  // namespace talvor::ads
