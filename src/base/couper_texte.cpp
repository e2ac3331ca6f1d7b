#include "base/couper_texte.h"

namespace talvor {

Text CouperTexte(TextView text) {
  constexpr std::size_t Longest = 40;
  constexpr std::size_t CutFrom = 35;
  constexpr std::size_t CutLeast = 3;
  constexpr std::size_t LeastWithLinkWord = 6;

  if (text.size() > Longest) {
    // Back to a blank, which stays and is trimmed; the count of characters kept is the position.
    std::size_t kept = CutFrom;
    while (text[kept - 1] != u' ' && kept > CutLeast) --kept;
    text = TrimBlanks(text.substr(0, kept));

    // A link word at the end leads nowhere. Each is taken off once, in this order.
    for (const TextView link : {u" DE", u" DU", u" EN", u" ET"})
      if (text.size() >= LeastWithLinkWord && EndsWithIgnoringCase(text, link))
        text.remove_suffix(link.size());
  }
  return Text{TrimBlanks(text)};
}

}  // namespace talvor
