#include "tracking/candidature_detail.h"

#include "base/couper_texte.h"

namespace talvor {
namespace {

enum class Cut { None, CouperTexte, First50, First250 };

// A field of the detail, its column, and how a save shortens it.
struct Link {
  Text CandidatureDetail::*field;
  Text Candidature::*column;
  Cut cut;
};

using D = CandidatureDetail;
using C = Candidature;

constexpr std::array<Link, 25> Links{{
    {&D::Num, &C::Num, Cut::None},
    {&D::Intitule, &C::Intitule, Cut::CouperTexte},
    {&D::Description, &C::Description, Cut::None},
    {&D::Nature, &C::Nature, Cut::CouperTexte},
    {&D::Lieu, &C::Lieu, Cut::First50},
    {&D::Duree, &C::Duree, Cut::None},
    {&D::Salaire, &C::Salaire, Cut::CouperTexte},
    {&D::Societe, &C::Societe, Cut::CouperTexte},
    {&D::NomContact, &C::NomContact, Cut::CouperTexte},
    {&D::Telephone, &C::Telephone, Cut::CouperTexte},
    {&D::Email, &C::courriel, Cut::CouperTexte},
    {&D::Origine, &C::Origine, Cut::CouperTexte},
    {&D::DateDiffusion, &C::Datediffussion, Cut::None},
    {&D::DateLimite, &C::DateLimite, Cut::None},
    {&D::DateRDV, &C::DateRDV, Cut::None},
    {&D::DateEnvoi, &C::DateEnvoi, Cut::None},
    {&D::www, &C::www, Cut::First250},
    {&D::Reference, &C::Reference, Cut::CouperTexte},
    {&D::Statut, &C::Statut, Cut::None},
    {&D::CV, &C::CV, Cut::None},
    {&D::Lettre, &C::Lettre, Cut::None},
    {&D::Remarques, &C::Remarques, Cut::None},
    {&D::Adresse, &C::Adresse, Cut::CouperTexte},
    {&D::CP, &C::CP, Cut::None},
    {&D::Ville, &C::Ville, Cut::CouperTexte},
}};

constexpr std::array<Text CandidatureDetail::*, 20> SignatureFields{
    &D::Ville,     &D::CP,      &D::Adresse,       &D::DateRDV, &D::Reference, &D::Remarques, &D::Statut,
    &D::DateEnvoi, &D::www,     &D::DateDiffusion, &D::Origine, &D::Email,     &D::Telephone, &D::NomContact,
    &D::Societe,   &D::Salaire, &D::Lieu,          &D::Duree,   &D::Nature,    &D::Intitule};

Text Shortened(const Text& text, Cut cut) {
  switch (cut) {
    case Cut::None:
      break;
    case Cut::CouperTexte:
      return CouperTexte(text);
    case Cut::First50:
      return text.substr(0, 50);
    case Cut::First250:
      return text.substr(0, 250);
  }
  return text;
}

}  // namespace

Candidature RowOf(const CandidatureDetail& detail) {
  Candidature row;
  for (const Link& link : Links) row.*(link.column) = Shortened(detail.*(link.field), link.cut);
  return row;
}

CandidatureDetail DetailOf(const Candidature& row) {
  CandidatureDetail detail;
  for (const Link& link : Links) detail.*(link.field) = row.*(link.column);
  return detail;
}

Text Signature(const CandidatureDetail& detail) {
  Text signature;
  for (const auto field : SignatureFields) signature += detail.*field;
  return signature;
}

}  // namespace talvor
