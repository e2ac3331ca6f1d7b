// The merge: from a letter model to the letter for one candidature.
#pragma once

#include <filesystem>

#include "base/day.h"
#include "platform/dialogs.h"
#include "platform/shell.h"
#include "tracking/form_cand.h"

namespace talvor {

// All fields of `FormCand` that have a text: each one's name is a tag. The text of a list is its
// selected row, empty without one.
struct CandidatureTexts : CandidatureDetail {
  Text AdresseWeb;
  Text Text1;  // the address taken from the title of a browser window outside the program
  Text TermFin;
  Text MotsValid, ListeMetiers;  // lists in which nothing is ever selected
  Text List1;                    // the job sites
  Text ListeStatuts, ListeContrats;
};

// In the order of the merge. A field put in later is not searched for the tags of earlier ones.
inline constexpr FieldTable<CandidatureTexts, 33> CandidatureTags{{
    {u"Ville", &CandidatureTexts::Ville},
    {u"CP", &CandidatureTexts::CP},
    {u"Adresse", &CandidatureTexts::Adresse},
    {u"CV", &CandidatureTexts::CV},
    {u"Lettre", &CandidatureTexts::Lettre},
    {u"DateRDV", &CandidatureTexts::DateRDV},
    {u"Reference", &CandidatureTexts::Reference},
    {u"Num", &CandidatureTexts::Num},
    {u"Description", &CandidatureTexts::Description},
    {u"Remarques", &CandidatureTexts::Remarques},
    {u"Statut", &CandidatureTexts::Statut},
    {u"DateEnvoi", &CandidatureTexts::DateEnvoi},
    {u"www", &CandidatureTexts::www},
    {u"DateLimite", &CandidatureTexts::DateLimite},
    {u"DateDiffusion", &CandidatureTexts::DateDiffusion},
    {u"Origine", &CandidatureTexts::Origine},
    {u"Email", &CandidatureTexts::Email},
    {u"Telephone", &CandidatureTexts::Telephone},
    {u"NomContact", &CandidatureTexts::NomContact},
    {u"Societe", &CandidatureTexts::Societe},
    {u"Salaire", &CandidatureTexts::Salaire},
    {u"Lieu", &CandidatureTexts::Lieu},
    {u"Duree", &CandidatureTexts::Duree},
    {u"Nature", &CandidatureTexts::Nature},
    {u"Intitule", &CandidatureTexts::Intitule},
    {u"AdresseWeb", &CandidatureTexts::AdresseWeb},
    {u"Text1", &CandidatureTexts::Text1},
    {u"TermFin", &CandidatureTexts::TermFin},
    {u"MotsValid", &CandidatureTexts::MotsValid},
    {u"ListeMetiers", &CandidatureTexts::ListeMetiers},
    {u"List1", &CandidatureTexts::List1},
    {u"ListeStatuts", &CandidatureTexts::ListeStatuts},
    {u"ListeContrats", &CandidatureTexts::ListeContrats},
}};

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
