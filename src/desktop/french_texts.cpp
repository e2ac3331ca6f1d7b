#include "desktop/french_texts.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace talvor {
namespace {

struct Word {
  std::string_view context, source;
  const char16_t* french;
};

constexpr std::string_view Files = "QAbstractFileIconProvider";
constexpr std::string_view Printing = "QPrintSettingsOutput";

constexpr std::array<Word, 9> Words{{
    {Files, "Drive", u"Disque"},
    {Files, "Folder", u"Dossier"},
    {Files, "Unknown", u"Inconnu"},
    {Printing, "Pages", u"Pages"},
    {Printing,
     "Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a "
     "hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
     u"Pages ou suites de pages séparées par des virgules\u00A0; une suite s’écrit par ses deux bouts et un "
     u"trait d’union. Exemple\u00A0: 3,5-7,9 imprime les pages 3, 5, 6, 7 et 9."},
    {Printing, "Double Sided Printing", u"Impression recto verso"},
    {Printing, "Off", u"Non"},
    {Printing, "Long side binding", u"Reliure sur le grand côté"},
    {Printing, "Short side binding", u"Reliure sur le petit côté"},
}};

}  // namespace

QString FrenchTexts::translate(const char* context, const char* source, const char*, int) const {
  const auto word = std::find_if(Words.begin(), Words.end(), [&](const Word& candidate) {
    return candidate.context == context && candidate.source == source;
  });
  return word == Words.end() ? QString() : QString::fromUtf16(word->french);
}

}  // namespace talvor
