#include "ads/ungluing.h"

namespace talvor {
namespace {

bool IsGlued(char16_t before, char16_t behind) {
  return before >= u'a' && before <= u'z' && behind >= u'A' && behind <= u'Z';
}

}  // namespace

Text DecollerMots(TextView txt) {
  Text unglued;
  unglued.reserve(txt.size() + txt.size() / 16);
  std::size_t at = 0;
  for (std::size_t visited = 1; visited < txt.size() && at + 1 < txt.size(); ++visited, ++at) {
    unglued += txt[at];
    if (!IsGlued(txt[at], txt[at + 1])) continue;
    unglued += u' ';
    ++visited;  // the blank is the next position
  }
  return unglued.append(txt.substr(at));
}

}  // namespace talvor
