// tracking: the candidatures, their store, their list and their detail.
#pragma once

#include "base/fields.h"

namespace talvor {

// One row of the table `Candidatures`, all text, under the names of its columns. `Num` is empty for a
// row not yet saved; a date is dd/mm/yyyy, empty for none.
struct Candidature {
  Text Num, Intitule, Description, Nature, Lieu, Duree, Salaire, Societe, NomContact, Telephone, courriel,
      Origine, Datediffussion, DateLimite, DateRDV, DateEnvoi, www, Reference, Statut, CV, Lettre, Remarques,
      Adresse, CP, Ville;
};

// In the order in which a save writes the columns.
inline constexpr FieldTable<Candidature, 25> CandidatureFields{{
    {u"Num", &Candidature::Num},
    {u"Intitule", &Candidature::Intitule},
    {u"Description", &Candidature::Description},
    {u"Nature", &Candidature::Nature},
    {u"Lieu", &Candidature::Lieu},
    {u"Duree", &Candidature::Duree},
    {u"Salaire", &Candidature::Salaire},
    {u"Societe", &Candidature::Societe},
    {u"NomContact", &Candidature::NomContact},
    {u"Telephone", &Candidature::Telephone},
    {u"courriel", &Candidature::courriel},
    {u"Origine", &Candidature::Origine},
    {u"Datediffussion", &Candidature::Datediffussion},
    {u"DateLimite", &Candidature::DateLimite},
    {u"DateRDV", &Candidature::DateRDV},
    {u"DateEnvoi", &Candidature::DateEnvoi},
    {u"www", &Candidature::www},
    {u"Reference", &Candidature::Reference},
    {u"Statut", &Candidature::Statut},
    {u"CV", &Candidature::CV},
    {u"Lettre", &Candidature::Lettre},
    {u"Remarques", &Candidature::Remarques},
    {u"Adresse", &Candidature::Adresse},
    {u"CP", &Candidature::CP},
    {u"Ville", &Candidature::Ville},
}};

// A column of the table, as an index of CandidatureFields.
enum class Column : std::size_t {
  Num,
  Intitule,
  Description,
  Nature,
  Lieu,
  Duree,
  Salaire,
  Societe,
  NomContact,
  Telephone,
  courriel,
  Origine,
  Datediffussion,
  DateLimite,
  DateRDV,
  DateEnvoi,
  www,
  Reference,
  Statut,
  CV,
  Lettre,
  Remarques,
  Adresse,
  CP,
  Ville,
};

[[nodiscard]] constexpr bool IsDate(Column column) {
  return column == Column::Datediffussion || column == Column::DateLimite || column == Column::DateRDV ||
         column == Column::DateEnvoi;
}

}  // namespace talvor
