#include "ads/phrase_reader.h"

#include <algorithm>

#include "base/fonctionnel.h"

namespace talvor::ads {
namespace {

constexpr std::size_t LeastOfAPhrase = 3;

bool IsOutOfBounds(Bound bound, const Words& words, Index index) {
  switch (bound) {
    case Bound::None:
      return false;
    case Bound::BeforeU:
      return index >= words.U();
    case Bound::BeforeUMinus1:
      break;
  }
  return index >= words.U() - 1;
}

bool Stops(const PhraseReader& reader, const Words& words, Index index, TextView word, const Text& field) {
  return (word == LineMark && field.size() >= LeastOfAPhrase) ||
         (!reader.stopWord.empty() && word == reader.stopWord) ||
         (!reader.stopPrefix.empty() && word.starts_with(reader.stopPrefix)) ||
         (reader.stopsAtNumber && ValeurNumerique(word) != 0) || IsOutOfBounds(reader.bound, words, index);
}

bool IsPassedOver(const PhraseReader& reader, TextView word) {
  return word == LineMark || (!word.empty() && (word == reader.leftOut[0] || word == reader.leftOut[1]));
}

}  // namespace

Step ReadWord(const PhraseReader& reader, const Words& words, Index I, Index K, TextView word, Text& field) {
  if (Stops(reader, words, I + K, word, field)) return Step::Stopped;
  if (IsPassedOver(reader, word)) return Step::PassedOver;
  field += reader.casing == Casing::NomPropre ? NomPropre(word) : Text{word};
  field += u' ';
  return Step::Took;
}

void ReadPhrase(const PhraseReader& reader, const Words& words, Index I, AdFields& record) {
  Text& field = record.*reader.field;
  for (Index K = reader.firstK; ReadWord(reader, words, I, K, words(I + K), field) != Step::Stopped;) ++K;
}

}  // namespace talvor::ads
