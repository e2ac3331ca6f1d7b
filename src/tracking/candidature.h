// tracking: the candidatures, their store, their list and their detail.
//
// One record serves the row of the table and the detail of the form, and one table of its fields makes
// all that walks over them: the statements of the store, the binding of the widgets, the tags of the
// letters, the signature, the output in JSON. A new field is a member of the record and a row of the table
// behind it, besides its line in the schema of the store; what does not agree does not compile.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "base/fields.h"

namespace talvor {

// All text, under the names of the form, in the order of the columns. `Num` is empty for a candidature not
// yet saved; a date of a row is dd/mm/yyyy, empty for none.
struct Candidature {
  Text Num, Intitule, Description, Nature, Lieu, Duree, Salaire, Societe, NomContact, Telephone, Email,
      Origine, DateDiffusion, DateLimite, DateRDV, DateEnvoi, www, Reference, Statut, CV, Lettre, Remarques,
      Adresse, CP, Ville;
};

// What a column of the table holds: the number of the row, a text, or a day that may be null.
enum class Holds { Key, Words, Date };

// How a save shortens a text for its column.
enum class Cut { None, CouperTexte, First50, First250 };

// Whether a change of the field saves the row.
enum class Signed { No, Yes };

struct CandidatureField {
  TextView name;  // on the form, in tags and in JSON
  Text Candidature::* text;
  int place;    // orders the fields as they stand on the form
  int control;  // orders them as the form lists its controls: that of the tags and of the signature
  Cut cut = Cut::None;
  Signed isSigned = Signed::Yes;
  Holds holds = Holds::Words;
  TextView columnName = {};  // empty where the column bears the name of the field

  [[nodiscard]] constexpr TextView Column() const { return columnName.empty() ? name : columnName; }
};

// In the order of the columns, in which a save writes them. The two other orders count in tens: a new field
// takes a number in between.
inline constexpr auto CandidatureFields = [] {
  using C = Candidature;
  return std::to_array<CandidatureField>({
      {u"Num", &C::Num, 10, 80, Cut::None, Signed::No, Holds::Key},
      {u"Intitule", &C::Intitule, 20, 250, Cut::CouperTexte},
      {u"Description", &C::Description, 70, 90, Cut::None, Signed::No},
      {u"Nature", &C::Nature, 30, 240, Cut::CouperTexte},
      {u"Lieu", &C::Lieu, 40, 220, Cut::First50},
      {u"Duree", &C::Duree, 50, 230},
      {u"Salaire", &C::Salaire, 60, 210, Cut::CouperTexte},
      {u"Societe", &C::Societe, 80, 200, Cut::CouperTexte},
      {u"NomContact", &C::NomContact, 90, 190, Cut::CouperTexte},
      {u"Telephone", &C::Telephone, 100, 180, Cut::CouperTexte},
      {u"Email", &C::Email, 110, 170, Cut::CouperTexte, Signed::Yes, Holds::Words, u"courriel"},
      {u"Origine", &C::Origine, 160, 160, Cut::CouperTexte},
      // The column is called Datediffussion (spelt so in the files).
      {u"DateDiffusion", &C::DateDiffusion, 170, 150, Cut::None, Signed::Yes, Holds::Date, u"Datediffussion"},
      {u"DateLimite", &C::DateLimite, 210, 140, Cut::None, Signed::No, Holds::Date},
      {u"DateRDV", &C::DateRDV, 220, 60, Cut::None, Signed::Yes, Holds::Date},
      {u"DateEnvoi", &C::DateEnvoi, 200, 120, Cut::None, Signed::Yes, Holds::Date},
      {u"www", &C::www, 180, 130, Cut::First250},
      {u"Reference", &C::Reference, 150, 70, Cut::CouperTexte},
      {u"Statut", &C::Statut, 190, 110},
      {u"CV", &C::CV, 230, 40, Cut::None, Signed::No},
      {u"Lettre", &C::Lettre, 240, 50, Cut::None, Signed::No},
      {u"Remarques", &C::Remarques, 250, 100},
      {u"Adresse", &C::Adresse, 120, 30, Cut::CouperTexte},
      {u"CP", &C::CP, 130, 20},
      {u"Ville", &C::Ville, 140, 10, Cut::CouperTexte},
  });
}();

inline constexpr std::size_t CandidatureFieldCount = CandidatureFields.size();

[[nodiscard]] consteval std::array<CandidatureField, CandidatureFieldCount> CandidatureFieldsBy(
    int CandidatureField::* order) {
  auto fields = CandidatureFields;
  std::ranges::sort(fields, {}, order);
  return fields;
}

inline constexpr auto CandidatureControls = CandidatureFieldsBy(&CandidatureField::control);

// In the order in which they stand on the form.
inline constexpr auto DetailFields = [] {
  FieldTable<Candidature, CandidatureFieldCount> table;
  std::ranges::transform(
      CandidatureFieldsBy(&CandidatureField::place), table.begin(),
      [](const CandidatureField& field) { return Field<Candidature>{field.name, field.text}; });
  return table;
}();

// The index of a field's column in CandidatureFields; a member without a row there is no constant.
[[nodiscard]] constexpr std::size_t ColumnIndexOf(Text Candidature::* field) {
  std::size_t index = 0;
  while (CandidatureFields.at(index).text != field) ++index;
  return index;
}

// A column of the table, told by its field: `row.Value(&Candidature::Statut)`. Which one it is is settled
// when the program is built.
class Column {
 public:
  consteval Column(Text Candidature::* field) : index_(ColumnIndexOf(field)) {}
  explicit constexpr Column(std::size_t index) : index_(index) {}

  [[nodiscard]] constexpr std::size_t Index() const { return index_; }

 private:
  std::size_t index_;
};

// The candidature as a save writes it: texts cut to their columns. The form itself keeps what was typed.
[[nodiscard]] Candidature AsSaved(const Candidature& candidature);

// What tells that the user changed something: the texts of the signed fields, one behind the other.
// `Description`, `DateLimite`, `CV` and `Lettre` stand elsewhere on the form and are out.
[[nodiscard]] Text Signature(const Candidature& candidature);

// The table agrees with the record and with itself.
static_assert(sizeof(Candidature) == CandidatureFieldCount * sizeof(Text), "a member has no row");
static_assert(
    [] {
      const auto places = CandidatureFieldsBy(&CandidatureField::place);
      for (std::size_t i = 0; i < CandidatureFieldCount; ++i) {
        if (ColumnIndexOf(CandidatureFields[i].text) != i) return false;
        if (i > 0 && places[i - 1].place == places[i].place) return false;
        if (i > 0 && CandidatureControls[i - 1].control == CandidatureControls[i].control) return false;
      }
      return CandidatureFields.front().holds == Holds::Key;
    }(),
    "a place is given twice, or a member has two rows");

}  // namespace talvor
