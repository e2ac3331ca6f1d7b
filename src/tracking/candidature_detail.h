// The fields of the detail, the form's view of one row.
#pragma once

#include <array>

#include "tracking/candidature.h"

namespace talvor {

struct CandidatureDetail {
  Text Num, Intitule, Nature, Lieu, Duree, Salaire, Description, Societe, NomContact, Telephone, Email,
      Adresse, CP, Ville, Reference, Origine, DateDiffusion, www, Statut, DateEnvoi, DateLimite, DateRDV, CV,
      Lettre, Remarques;
};

// In the order in which they stand on the form.
inline constexpr FieldTable<CandidatureDetail, 25> DetailFields{{
    {u"Num", &CandidatureDetail::Num},
    {u"Intitule", &CandidatureDetail::Intitule},
    {u"Nature", &CandidatureDetail::Nature},
    {u"Lieu", &CandidatureDetail::Lieu},
    {u"Duree", &CandidatureDetail::Duree},
    {u"Salaire", &CandidatureDetail::Salaire},
    {u"Description", &CandidatureDetail::Description},
    {u"Societe", &CandidatureDetail::Societe},
    {u"NomContact", &CandidatureDetail::NomContact},
    {u"Telephone", &CandidatureDetail::Telephone},
    {u"Email", &CandidatureDetail::Email},
    {u"Adresse", &CandidatureDetail::Adresse},
    {u"CP", &CandidatureDetail::CP},
    {u"Ville", &CandidatureDetail::Ville},
    {u"Reference", &CandidatureDetail::Reference},
    {u"Origine", &CandidatureDetail::Origine},
    {u"DateDiffusion", &CandidatureDetail::DateDiffusion},
    {u"www", &CandidatureDetail::www},
    {u"Statut", &CandidatureDetail::Statut},
    {u"DateEnvoi", &CandidatureDetail::DateEnvoi},
    {u"DateLimite", &CandidatureDetail::DateLimite},
    {u"DateRDV", &CandidatureDetail::DateRDV},
    {u"CV", &CandidatureDetail::CV},
    {u"Lettre", &CandidatureDetail::Lettre},
    {u"Remarques", &CandidatureDetail::Remarques},
}};

// The row as a save writes it: texts cut to their columns. The detail itself keeps what was typed.
[[nodiscard]] Candidature RowOf(const CandidatureDetail& detail);

// The detail that shows a row.
[[nodiscard]] CandidatureDetail DetailOf(const Candidature& row);

// What tells that the user changed something: the texts of twenty fields in a fixed order, picked by
// their place on the form. `Description`, `DateLimite`, `CV` and `Lettre` stand elsewhere and are out.
[[nodiscard]] Text Signature(const CandidatureDetail& detail);

}  // namespace talvor
