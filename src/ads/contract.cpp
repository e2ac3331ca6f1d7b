// The type of contract: a term of the contract list anywhere in the advertisement.

#include <algorithm>

#include "ads/contracts.h"
#include "ads/rules.h"

namespace talvor::ads {
namespace {

// Half of the terms begin with this word; an advertisement without it is not searched for them.
constexpr TextView CommonBeginning = u"CONTRAT ";

// The match is on the plain text: a term inside a longer word counts.
bool HoldsATermOf(TextView row, TextView normalForm, bool holdsBeginning) {
  while (!row.empty()) {
    const auto comma = row.find(u',');
    const TextView term = row.substr(0, comma);
    if ((holdsBeginning || !term.starts_with(CommonBeginning)) && Contains(normalForm, term)) return true;
    row.remove_prefix(comma == TextView::npos ? row.size() : comma + 1);
  }
  return false;
}

}  // namespace

void FindContract(TextView normalForm, AdFields& record) {
  if (!record.Nature.empty()) return;
  const bool holdsBeginning = Contains(normalForm, CommonBeginning);
  // The row nearest to the top that matches is the one that stands.
  const auto row = std::find_if(ListeContrats.begin(), ListeContrats.end(), [&](TextView candidate) {
    return HoldsATermOf(candidate, normalForm, holdsBeginning);
  });
  if (row != ListeContrats.end()) record.Nature = *row;
}

}  // namespace talvor::ads
