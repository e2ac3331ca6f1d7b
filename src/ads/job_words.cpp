#include "ads/job_words.h"

#include <unordered_set>

namespace talvor {

bool IsJobWord(TextView word) {
  static const std::unordered_set<TextView> rows(ListeMetiers.begin(), ListeMetiers.end());
  return rows.contains(word) || (word.ends_with(u'S') && rows.contains(word.substr(0, word.size() - 1)));
}

}  // namespace talvor
