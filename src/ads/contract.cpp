// The type of contract: a term of the contract list anywhere in the advertisement.

#include <algorithm>

#include "ads/rules.h"
#include "tracking/contracts.h"

namespace talvor::ads {
namespace {

// The match is on the plain text: a term inside a longer word counts.
bool HoldsATermOf(TextView row, TextView normalForm) {
  while (!row.empty()) {
    const auto comma = row.find(u',');
    if (Contains(normalForm, row.substr(0, comma))) return true;
    row.remove_prefix(comma == TextView::npos ? row.size() : comma + 1);
  }
  return false;
}

}  // namespace

void FindContract(TextView normalForm, AdFields& record) {
  if (!record.Nature.empty()) return;
  // The row nearest to the top that matches is the one that stands.
  const auto row = std::find_if(ListeContrats.begin(), ListeContrats.end(),
                                [&](TextView candidate) { return HoldsATermOf(candidate, normalForm); });
  if (row != ListeContrats.end()) record.Nature = *row;
}

}  // namespace talvor::ads
