// The place of work, and the postal code with the town behind it and the street in front of it.

#include <vector>

#include "ads/phrase_reader.h"
#include "ads/rules.h"
#include "base/fonctionnel.h"

namespace talvor::ads {
namespace {

// A postal code counts only with one of these words shortly before it. The parser of an identity has a
// list of its own, without "ZI": the two are not to be aligned.
constexpr TextView StreetWords =
    u" RUE AVENUE QUAI ZA ZI AV R BOULEVARD BD BLV BVD BV ALLEE ESPLANADE PLACE BP ROUTE TSA ";

constexpr Index StreetReach = 7;  // words

// A line mark is just a word here: a street on the line above counts.
bool HasStreetBefore(const Words& words, Index I) {
  for (Index J = 1; J <= StreetReach && I > J; ++J)
    if (Contains(StreetWords, u" " + Text{words(I - J)} + u" ")) return true;
  return false;
}

// «BOULOGNE SUR MER», «ROSNY LES BAINS», «PARIS CEDEX 08»: the one word behind the link is taken.
void ReadTown(const Words& words, Index I, Text& town) {
  town = words(I + 1);
  const TextView link = words(I + 2);
  if (link != u"SUR" && link != u"LES" && link != u"CEDEX") return;
  const TextView rest = words(I + 3);
  town.append(u" ").append(link).append(u" ").append(rest);
}

// Grows the address backwards from the postal code at I, in front of what the field holds: to the
// house number or the start of the line once it has more than ten characters, and on to the line above
// before. At the start of the words it fails, with the words read standing.
void GrowAddress(const Words& words, Index I, Text& address) {
  constexpr std::size_t LongEnough = 10;
  std::vector<TextView> taken;
  std::size_t length = address.size();
  Index J = 1;
  for (; J <= I; ++J) {
    // At J = 1 the word behind is the postal code, a number: the length alone decides.
    const bool atBoundary = ValeurNumerique(words(I - J + 1)) > 0 || words(I - J) == LineMark;
    if (length > LongEnough && atBoundary) break;
    if (words(I - J) == LineMark) continue;
    taken.push_back(words(I - J));
    length += taken.back().size() + 1;
  }
  Text grown;
  grown.reserve(length);
  for (auto word = taken.rbegin(); word != taken.rend(); ++word) grown.append(*word).append(u" ");
  address.insert(0, grown);
  if (J > I) throw AnalysisFailure{};
}

// A post box without a number in front of it stands alone, in capitals.
void TidyAddress(Text& address) {
  const auto box = address.find(u" BP ");
  if (box != Text::npos && ValeurNumerique(address) == 0)
    address.erase(0, box + 1);
  else
    address = NomPropre(address);
}

}  // namespace

void PlaceRule(Run& run, Index I) {
  if (run.record.Lieu.empty()) ReadPhrase(PlaceReader, run.words, I, run.record);
}

void PostalCodeRule(Run& run, Index I) {
  AdFields& record = run.record;
  const TextView word = run.words(I);
  if (!record.CP.empty() || !CodePostalValide(word) || !(ValeurNumerique(word) > 0)) return;
  if (!HasStreetBefore(run.words, I)) return;
  record.CP = word;
  ReadTown(run.words, I, record.Ville);
  GrowAddress(run.words, I, record.Adresse);
  TidyAddress(record.Adresse);
}

}  // namespace talvor::ads
