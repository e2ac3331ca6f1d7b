// The telephone: behind its label, or five numbers in a row without any.

#include "ads/phrase_reader.h"
#include "ads/rules.h"
#include "base/fonctionnel.h"

namespace talvor::ads {
namespace {

// Zeros and line marks decide nothing yet.
bool IsZeros(TextView word) { return word == LineMark || word.find_first_not_of(u'0') == TextView::npos; }

// The first word that is more than zeros decides whether a reading has a value.
bool BeginsWithValue(TextView word) {
  const char16_t decisive = word[word.find_first_not_of(u'0')];
  return decisive >= u'1' && decisive <= u'9';
}

void ReadBehindLabel(Run& run, Index I) {
  Text& telephone = run.record.Telephone;
  bool undecided = true;
  for (Index K = TelephoneReader.firstK;; ++K) {
    const TextView word = run.words(I + K);
    if (ReadWord(TelephoneReader, run.words, I, K, word, telephone) == Step::Stopped) return;
    if (undecided && !IsZeros(word)) {
      undecided = false;
      if (!BeginsWithValue(word)) return;  // the check throws the reading away, however it goes on
    }
  }
}

// The five words that end at I, when each has a value: a French number written in pairs.
bool AreFiveNumbers(const Words& words, Index I) {
  constexpr Index EarliestEnd = 7;
  if (I < EarliestEnd) return false;
  for (Index back = 0; back < 5; ++back)
    if (!(ValeurNumerique(words(I - back)) > 0)) return false;
  return true;
}

Text FiveWords(const Words& words, Index I) {
  Text number{words(I - 4)};
  for (Index back = 3; back >= 0; --back) number.append(u" ").append(words(I - back));
  return number;
}

}  // namespace

void TelephoneRule(Run& run, Index I) {
  Text& telephone = run.record.Telephone;
  if (!telephone.empty()) return;
  ReadBehindLabel(run, I);
  // A reading that begins with a word is thrown away, and the rules stay open.
  if (ValeurNumerique(Normaliser(telephone)) == 0) telephone.clear();
}

void FiveNumbersRule(Run& run, Index I) {
  if (run.record.Telephone.empty() && AreFiveNumbers(run.words, I))
    run.record.Telephone = FiveWords(run.words, I);
}

}  // namespace talvor::ads
