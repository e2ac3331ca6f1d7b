// The merge: from a letter model to the letter for one candidature.
#pragma once

#include <filesystem>

#include "base/day.h"
#include "platform/dialogs.h"
#include "platform/shell.h"
#include "tracking/candidature.h"

namespace talvor {

class FormCand;

// All fields of `FormCand` that have a text: each one's name is a tag. The text of a list is its
// selected row, empty without one.
struct CandidatureTexts : Candidature {
  Text AdresseWeb;
  Text Text1;  // the address taken from the title of a browser window outside the program
  Text TermFin;
  Text MotsValid, ListeMetiers;  // lists in which nothing is ever selected
  Text List1;                    // the job sites
  Text ListeStatuts, ListeContrats;
};

// In the order of the merge: the fields of the candidature as the form lists its controls, then the others. A
// field put in later is not searched for the tags of earlier ones.
inline constexpr auto CandidatureTags = [] {
  using T = CandidatureTexts;
  constexpr FieldTable<T, 8> Others{{{u"AdresseWeb", &T::AdresseWeb},
                                     {u"Text1", &T::Text1},
                                     {u"TermFin", &T::TermFin},
                                     {u"MotsValid", &T::MotsValid},
                                     {u"ListeMetiers", &T::ListeMetiers},
                                     {u"List1", &T::List1},
                                     {u"ListeStatuts", &T::ListeStatuts},
                                     {u"ListeContrats", &T::ListeContrats}}};
  FieldTable<T, CandidatureFieldCount + Others.size()> tags;
  auto tag = tags.begin();
  for (const auto& field : CandidatureControls) *tag++ = {field.name, field.text};
  for (const auto& field : Others) *tag++ = field;
  return tags;
}();
static_assert(sizeof(CandidatureTexts) == CandidatureTags.size() * sizeof(Text), "a text has no tag");

// The texts of the form as they stand. `Text1` and `List1` belong to what browses and are left empty.
[[nodiscard]] CandidatureTexts TextsOf(const FormCand& form);

// What the merge fills of the apply form `FormPostuler`.
struct MergedLetter {
  Text Texte;
  Text Email;  // the sender: «First Last<address>»
  Text Objet;  // a model without a subject leaves the one that stands
};

// Fills `letter` from a model, given by its full path, and brings the apply form forward. False when
// there is no such file: the user is told, and `letter` stays as it was.
bool FusionnerLettre(const std::filesystem::path& chemin, const CandidatureTexts& candidature, Day today,
                     MergedLetter& letter, Dialogs& dialogs, Shell& shell);

}  // namespace talvor
