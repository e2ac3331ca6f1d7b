// cv: the CV file, its page, its English, the parser of a pasted identity and the editor.
//
// `CvDocument` is a CV in memory: text keys, and groups of checks. The keys are the names in the file.
#pragma once

#include <array>
#include <cstddef>

#include "base/fields.h"

namespace talvor {

inline constexpr std::size_t LanguageCount = 9;

inline constexpr std::array<TextView, LanguageCount> LanguageNames{u"Anglais", u"Allemand", u"Espagnol",
                                                                   u"Italien", u"Russe",    u"Chinois",
                                                                   u"Arabe",   u"Polonais", u"Suédois"};

// The values of a check group, by 0-based index. Every group has room for nine; its size says how
// many of them it has.
using Checks = std::array<bool, LanguageCount>;

// A new CV has the values given here.
struct CvDocument {
  Text LangueCV{u"0"};  // language of the page: "0" French, "1" English
  Text Identite;        // the pasted identity block
  Text Langues;         // summary of the language grid, one language a line
  Text Nom, Adresse1, Prenom, Adresse2, CP, Ville, Pays, Tel, Mob, Email;
  Text Fonction, Etudes, Formations, Experiences, LanguesPlus, Objectifs, Divers, Competences;
  Text DateNaissance, LieuNaissance, Age, NbEnfants, Situation;
  Text NomCV;
  Text NomModele{u"Basic"};   // the template, without extension
  Text Police{u"Arial"};      // the font of the page
  Text Modele{u"Basic.htm"};  // the template's file name
  Text Souligne{u"0"}, Gras{u"1"}, Indentation{u"1"}, Saut{u"0"};
  Text Couleur{u"#FF6600"}, CouleurClaire{u"#FFE6D5"};
  // What the lists of the editor have selected, and the title of the font frame: written, never read.
  Text ListeSituations, List1, ListeModeles, FramePolice{u"Police"};

  Checks LangueCourant{}, LangueProf{}, LangueScolaire{}, LangueBilingue{};
  Checks CheckDisposition{};                           // 0 degrees first, 1 experience first
  Checks CheckParagraphe{{true, false, true, false}};  // Gras, Souligné, Indentation, Saut
};

// The text fields in the order of the form, which is that of the file and of the walk over the page.
inline constexpr FieldTable<CvDocument, 40> CvFields{{
    {u"LangueCV", &CvDocument::LangueCV},
    {u"Identite", &CvDocument::Identite},
    {u"Langues", &CvDocument::Langues},
    {u"Nom", &CvDocument::Nom},
    {u"Adresse1", &CvDocument::Adresse1},
    {u"Prénom", &CvDocument::Prenom},
    {u"Adresse2", &CvDocument::Adresse2},
    {u"CP", &CvDocument::CP},
    {u"Ville", &CvDocument::Ville},
    {u"Pays", &CvDocument::Pays},
    {u"Tel", &CvDocument::Tel},
    {u"Mob", &CvDocument::Mob},
    {u"Email", &CvDocument::Email},
    {u"Fonction", &CvDocument::Fonction},
    {u"Etudes", &CvDocument::Etudes},
    {u"Formations", &CvDocument::Formations},
    {u"Experiences", &CvDocument::Experiences},
    {u"LanguesPlus", &CvDocument::LanguesPlus},
    {u"Objectifs", &CvDocument::Objectifs},
    {u"Divers", &CvDocument::Divers},
    {u"Competences", &CvDocument::Competences},
    {u"DateNaissance", &CvDocument::DateNaissance},
    {u"LieuNaissance", &CvDocument::LieuNaissance},
    {u"Age", &CvDocument::Age},
    {u"NbEnfants", &CvDocument::NbEnfants},
    {u"Situation", &CvDocument::Situation},
    {u"NomCV", &CvDocument::NomCV},
    {u"NomModele", &CvDocument::NomModele},
    {u"Police", &CvDocument::Police},
    {u"Modèle", &CvDocument::Modele},
    {u"Souligné", &CvDocument::Souligne},
    {u"Gras", &CvDocument::Gras},
    {u"Indentation", &CvDocument::Indentation},
    {u"Saut", &CvDocument::Saut},
    {u"Couleur", &CvDocument::Couleur},
    {u"CouleurClaire", &CvDocument::CouleurClaire},
    {u"ListeSituations", &CvDocument::ListeSituations},
    {u"List1", &CvDocument::List1},
    {u"ListeModeles", &CvDocument::ListeModeles},
    {u"FramePolice", &CvDocument::FramePolice},
}};

// The fields from this index on are written to a file but not read from it.
inline constexpr std::size_t FirstUnreadField = 36;

struct CheckGroup {
  TextView name;
  std::size_t size;
  Checks CvDocument::* values;
};

// In the order of the file.
inline constexpr std::array<CheckGroup, 6> CheckGroups{{
    {u"LangueCourant", LanguageCount, &CvDocument::LangueCourant},
    {u"LangueProf", LanguageCount, &CvDocument::LangueProf},
    {u"LangueScolaire", LanguageCount, &CvDocument::LangueScolaire},
    {u"LangueBilingue", LanguageCount, &CvDocument::LangueBilingue},
    {u"CheckDisposition", 2, &CvDocument::CheckDisposition},
    {u"CheckParagraphe", 4, &CvDocument::CheckParagraphe},
}};

// The group of exactly that name, or null.
[[nodiscard]] constexpr const CheckGroup* FindCheckGroup(TextView name) {
  for (const auto& group : CheckGroups)
    if (group.name == name) return &group;
  return nullptr;
}

}  // namespace talvor
