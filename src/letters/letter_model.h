// letters: the letter model and its file, the composer with its sentences, the merge with a candidature.
//
// `LetterModel` is a letter model in memory. The names of its fields are the keys of its file, and those
// of a CV file where both have them.
#pragma once

#include <array>
#include <cstddef>

#include "base/fields.h"

namespace talvor {

// Two exclusive flags; SetFlag keeps exactly one of them set.
using FlagPair = std::array<bool, 2>;

constexpr void SetFlag(FlagPair& pair, std::size_t index, bool value) {
  pair[index] = value;
  pair[1 - index] = !value;
}

// Indexes of `Check_Modele`.
inline constexpr std::size_t Printed = 0, Mail = 1;
// Indexes of `Check_candidature`.
inline constexpr std::size_t Spontaneous = 0, Answer = 1;

inline constexpr std::size_t CorpsCount = 5;

struct LetterModel {
  Text NomLettre;  // the model's name, that of its file without extension
  Text Nom, Prenom, Adresse1, Adresse2, CP, Ville, Pays, Tel, Mob, Email;
  Text Poste, LastSociete;              // last post held, last company
  Text Competences, Domaine, Fonction;  // quoted in the sentences
  std::array<Text, CorpsCount> Corps;   // Introduction, Adequation, Motivation, Disposition, Politesse
  Text Text1;                           // the composed letter, tags still in place
  Text Objet;                           // the subject of a mail
  FlagPair Check_Modele{}, Check_candidature{};
};

// The single text fields in the order of the form, which is that of the file.
inline constexpr FieldTable<LetterModel, 18> LetterFields{{
    {u"Objet", &LetterModel::Objet},
    {u"Text1", &LetterModel::Text1},
    {u"NomLettre", &LetterModel::NomLettre},
    {u"Poste", &LetterModel::Poste},
    {u"LastSociete", &LetterModel::LastSociete},
    {u"Competences", &LetterModel::Competences},
    {u"Domaine", &LetterModel::Domaine},
    {u"Fonction", &LetterModel::Fonction},
    {u"Email", &LetterModel::Email},
    {u"Mob", &LetterModel::Mob},
    {u"Tel", &LetterModel::Tel},
    {u"Pays", &LetterModel::Pays},
    {u"Ville", &LetterModel::Ville},
    {u"CP", &LetterModel::CP},
    {u"Adresse2", &LetterModel::Adresse2},
    {u"Prénom", &LetterModel::Prenom},
    {u"Adresse1", &LetterModel::Adresse1},
    {u"Nom", &LetterModel::Nom},
}};

struct FlagGroup {
  TextView name;
  FlagPair LetterModel::* flags;
};

// In the order of the file.
inline constexpr std::array<FlagGroup, 2> FlagGroups{{
    {u"Check_Modele", &LetterModel::Check_Modele},
    {u"Check_candidature", &LetterModel::Check_candidature},
}};

// The four kinds of model; the suffix ends the name of a model that is named by the program.
struct LetterKind {
  std::size_t modele;       // index of `Check_Modele`
  std::size_t candidature;  // index of `Check_candidature`
  TextView suffix;
  TextView description;  // as the home panel shows it
};

inline constexpr std::array<LetterKind, 4> LetterKinds{{
    {Printed, Spontaneous, u" (IS)", u"Modèle à imprimer, candidature spontanée"},
    {Printed, Answer, u" (IR)", u"Modèle à imprimer, réponse à une annonce"},
    {Mail, Spontaneous, u" (ES)", u"Modèle mail, candidature spontanée"},
    {Mail, Answer, u" (ER)", u"Modèle mail, réponse à une annonce"},
}};

}  // namespace talvor
