// The reference of the advertisement behind its label.

#include "ads/rules.h"

namespace talvor::ads {
namespace {

// A first word of eight characters is a reference on its own; a shorter one takes the words up to the
// end of the line.
constexpr std::size_t WholeReference = 8;
constexpr std::size_t LeastReference = 3;

}  // namespace

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
