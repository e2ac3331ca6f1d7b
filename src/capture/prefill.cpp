#include "capture/prefill.h"

#include <array>
#include <utility>

namespace talvor {
namespace {

enum class Match { Holds, Equals };

struct Row {
  TextView text;
  Text PrefillValues::* value;
  Match match = Match::Holds;
};

using V = PrefillValues;

// In this order, as a later row overrules an earlier one: «PRENOM» holds "NOM" as well.
constexpr std::array<Row, 28> Rows{{
    {u"MAI", &V::email},         {u"LOG", &V::email},
    {u"IDENT", &V::email},       {u"LAST", &V::surname},
    {u"NOM", &V::surname},       {u"SURN", &V::surname},
    {u"PRE", &V::firstName},     {u"FIRST", &V::firstName},
    {u"ADR", &V::address},       {u"CP", &V::postalCode},
    {u"POSTAL", &V::postalCode}, {u"VPA", &V::town},
    {u"LOC", &V::town},          {u"VILLE", &V::town},
    {u"CITY", &V::town},         {u"L", &V::town, Match::Equals},
    {u"CLE", &V::job},           {u"MOT", &V::job},
    {u"KEY", &V::job},           {u"R", &V::job, Match::Equals},
    {u"EXP", &V::email},         {u"RCH", &V::job},
    {u"TEL", &V::telephone},     {u"MES", &V::letter},
    {u"COM", &V::letter},        {u"REM", &V::letter},
    {u"LET", &V::letter},        {u"NOTE", &V::letter},
}};

}  // namespace

PrefillValues PrefillValuesOf(const Identity& identity, Text letter) {
  return {.email = identity.Email,
          .surname = identity.Nom,
          .firstName = identity.Prenom,
          .address = identity.Adresse1,
          .postalCode = identity.CP,
          .town = identity.Ville,
          .telephone = identity.Tel,
          .job = identity.Fonction,
          .letter = std::move(letter)};
}

const Text* PrefillValue(const PrefillValues& values, TextView name, TextView id) {
  const Text nom = UpperCase(name.empty() ? id : name);
  if (nom.empty() || Contains(nom, u"PASS")) return nullptr;
  const Text* value = nullptr;
  for (const Row& row : Rows)
    if (row.match == Match::Equals ? nom == row.text : Contains(nom, row.text)) value = &(values.*row.value);
  return value;
}

}  // namespace talvor
