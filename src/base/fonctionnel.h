// `Fonctionnel`: the small text rules that the whole system builds on, total over any text. Their
// exact results, oddities included, are what the analyser, the CV page and the letters rest on.
#pragma once

#include "base/text.h"

namespace talvor {

// Upper case, with É, È, Ê, À, Ï, Û and Ô folded to their plain letter. The table is these seven:
// Ç, Â, Ë, Î, Ù and Ü stay. The length never changes.
[[nodiscard]] Text SansAccents(TextView text);

// The 0-based position of SansAccents(`what`) in SansAccents(`text`), TextView::npos for none.
[[nodiscard]] std::size_t FindSansAccents(TextView text, TextView what);

// True if a first name reads as a woman's.
[[nodiscard]] bool EstPrenomFeminin(TextView prenom);

// The normal form: capitals without accents, digits, "/" and single blanks, trimmed. Every other
// character is a blank, and a carriage return is followed by the word ".". A run of blanks keeps one
// blank for each 1024 begun.
[[nodiscard]] Text Normaliser(TextView text);

// Three letters and a blank for each month, without the last blank; July is the second JUI.
inline constexpr TextView MonthAbbreviations = u"JAN FEV MAR AVR MAI JUI JUI AOU SEP OCT NOV DEC";

// 1 to 12 for a text that begins with a French month word, 0 for one that does not. «Juin» and
// «juillet» both give 6 and the empty text 1.
[[nodiscard]] int NumeroMois(TextView text);

// The first character and each one behind a blank upper-cased, all others lower-cased.
[[nodiscard]] Text NomPropre(TextView text);

// True for exactly five characters from "0" to "9".
[[nodiscard]] bool CodePostalValide(TextView text);

// The value of the longest prefix that reads as a number, 0 without one. Blanks, tabs and line feeds
// are passed over inside it; it has no sign; "." begins the fraction; "E" or "D" with digits behind
// is an exponent; "&H" and "&O" begin a hexadecimal and an octal number. Never infinite.
[[nodiscard]] double ValeurNumerique(TextView text);

}  // namespace talvor
