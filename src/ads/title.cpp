// The title: it begins at the first job word of the advertisement and ends with its line.

#include <utility>

#include "ads/job_words.h"
#include "ads/phrase_reader.h"
#include "ads/rules.h"
#include "base/couper_texte.h"

namespace talvor::ads {
namespace {

// What the normal form has torn off: feminine endings and apostrophes. A title's first word has no
// blank in front of it and is never repaired.
Text Repaired(Text title) {
  title = ReplaceAll(title, u" Ere ", u" ");
  title = ReplaceAll(title, u" D ", u" d'");
  title = ReplaceAll(title, u" E ", u" ");
  title = ReplaceAll(title, u"H/f", u"");
  return CouperTexte(title);
}

}  // namespace

void TitleRule(Run& run, Index I) {
  constexpr std::size_t LongerThan = 3;
  Text& title = run.record.Intitule;
  const TextView word = run.words(I);
  if (!title.empty() || word.size() <= LongerThan || !IsJobWord(word)) return;
  ReadPhrase(TitleReader, run.words, I, run.record);
  title = Repaired(std::move(title));
}

}  // namespace talvor::ads
