// The phrase readers: every keyword rule reads the words behind its keyword with the same loop, to the
// end of the line that holds the phrase's first three characters.
#pragma once

#include <array>

#include "ads/ad_fields.h"
#include "ads/words.h"

namespace talvor::ads {

// Where a reader stops for want of words. Without a bound it runs on until a failure.
enum class Bound { None, BeforeU, BeforeUMinus1 };

enum class Casing { AsItStands, NomPropre };

struct PhraseReader {
  Text AdFields::* field;
  Index firstK;
  TextView stopWord;           // a word that ends the phrase, empty for none
  TextView stopPrefix;         // the first three characters of one that does, empty for none
  bool stopsAtNumber = false;  // a word with a value ends the phrase
  Bound bound = Bound::None;
  std::array<TextView, 2> leftOut;  // words passed over, besides line marks; empty for none
  Casing casing = Casing::AsItStands;
};

inline constexpr PhraseReader TitleReader{
    .field = &AdFields::Intitule, .firstK = 0, .stopPrefix = u"H/F", .casing = Casing::NomPropre};
inline constexpr PhraseReader PlaceReader{.field = &AdFields::Lieu,
                                          .firstK = 1,
                                          .stopWord = u"LOCALISER",
                                          .leftOut = {u"DE", u"TRAVAIL"},
                                          .casing = Casing::NomPropre};
inline constexpr PhraseReader SalaryReader{
    .field = &AdFields::Salaire, .firstK = 1, .leftOut = {u"INDICATIF"}, .casing = Casing::NomPropre};
inline constexpr PhraseReader DurationReader{.field = &AdFields::Duree, .firstK = 1};
inline constexpr PhraseReader CompanyReader{.field = &AdFields::Societe, .firstK = 1};
inline constexpr PhraseReader ContactReader{
    .field = &AdFields::NomContact, .firstK = 1, .stopsAtNumber = true, .bound = Bound::BeforeUMinus1};
inline constexpr PhraseReader TelephoneReader{
    .field = &AdFields::Telephone, .firstK = 1, .stopWord = u"OU", .bound = Bound::BeforeU};

// What one step of a reader did.
enum class Step { Took, PassedOver, Stopped };

// Tests the word at I+K, which must exist even where another part of the condition would stop the
// reader already, and appends it to the field with one blank behind it unless it is passed over.
[[nodiscard]] Step ReadWord(const PhraseReader& reader, const Words& words, Index I, Index K, TextView word,
                            Text& field);

// Reads a whole phrase behind word I into the reader's field.
void ReadPhrase(const PhraseReader& reader, const Words& words, Index I, AdFields& record);

}  // namespace talvor::ads
