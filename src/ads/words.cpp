#include "ads/words.h"

#include <algorithm>

namespace talvor::ads {

Words::Words(TextView texte) : texte_(texte) {
  // In the normal form blanks part the words one by one.
  words_.reserve(static_cast<std::size_t>(std::count(texte.begin(), texte.end(), u' ')) + 2);
  words_.push_back(texte.substr(0, 0));
  const char16_t* const end = texte.data() + texte.size();
  for (const char16_t* first = texte.data();; ++first) {
    const char16_t* last = first;
    while (last != end && *last != u' ') ++last;
    words_.emplace_back(first, static_cast<std::size_t>(last - first));
    if (words_.back() == LineMark) lastLineMark_ = U();
    if (last == end) break;
    first = last;
  }
}

TextView Words::Uncut(Index index) const {
  const auto from = static_cast<std::size_t>((*this)(index).data() - texte_.data());
  return texte_.substr(from, texte_.find(u' ', from) - from);
}

void Words::CutAtSlash(Index index) {
  constexpr std::size_t LongerThan = 12;
  constexpr std::size_t FirstSlash = 5;  // 0-based
  TextView& word = words_[static_cast<std::size_t>(index)];
  if (word.size() <= LongerThan) return;
  const auto slash = word.find(u'/');
  if (slash != TextView::npos && slash >= FirstSlash) word = word.substr(0, slash);
}

}  // namespace talvor::ads
