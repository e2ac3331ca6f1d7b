// ads: from the text of an advertisement to its fields. The rules know texts only: no form, no file, no page.
#pragma once

#include "base/fields.h"

namespace talvor {

// What the analyser fills, under the names of the detail. An empty text means not known.
struct AdFields {
  Text Intitule, Description, Nature, Societe, NomContact, Email, Telephone, Adresse, CP, Ville, Lieu,
      Salaire, Duree, Reference, DateDiffusion, www, Origine;
};

inline constexpr FieldTable<AdFields, 17> AdFieldTable{{
    {u"Intitule", &AdFields::Intitule},
    {u"Description", &AdFields::Description},
    {u"Nature", &AdFields::Nature},
    {u"Societe", &AdFields::Societe},
    {u"NomContact", &AdFields::NomContact},
    {u"Email", &AdFields::Email},
    {u"Telephone", &AdFields::Telephone},
    {u"Adresse", &AdFields::Adresse},
    {u"CP", &AdFields::CP},
    {u"Ville", &AdFields::Ville},
    {u"Lieu", &AdFields::Lieu},
    {u"Salaire", &AdFields::Salaire},
    {u"Duree", &AdFields::Duree},
    {u"Reference", &AdFields::Reference},
    {u"DateDiffusion", &AdFields::DateDiffusion},
    {u"www", &AdFields::www},
    {u"Origine", &AdFields::Origine},
}};
static_assert(sizeof(AdFields) == AdFieldTable.size() * sizeof(Text), "a field has no name");

}  // namespace talvor
