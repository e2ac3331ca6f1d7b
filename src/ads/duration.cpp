// The duration of the post behind its label.

#include "ads/phrase_reader.h"
#include "ads/rules.h"

namespace talvor::ads {

void DurationRule(Run& run, Index I) {
  if (run.record.Duree.empty()) ReadPhrase(DurationReader, run.words, I, run.record);
}

}  // namespace talvor::ads
