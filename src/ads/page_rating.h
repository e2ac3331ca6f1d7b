// How much a page looks like one advertisement.
#pragma once

#include <array>

#include "base/text.h"

namespace talvor {

// Terms that mark a page as an advertisement, looked for anywhere in its normal form.
inline constexpr std::array<TextView, 26> MotsValid{u"OFFRE",
                                                    u"REFERENCE",
                                                    u"DATE",
                                                    u"SOCIETE",
                                                    u"CONTRAT",
                                                    u"LIEU",
                                                    u"SALAIRE",
                                                    u"EXPERIENCE",
                                                    u"POSTULER",
                                                    u"RECHERCHER",
                                                    u"PROFIL",
                                                    u"QUALIFICATION",
                                                    u"DUREE",
                                                    u"DEPLACEMENTS",
                                                    u"SECTEUR",
                                                    u"CV",
                                                    u"LETTRE",
                                                    u"IMPRIMER CETTE OFFRE",
                                                    u"ENVOYER CETTE OFFRE",
                                                    u"CDI",
                                                    u"CDD",
                                                    u"CNE",
                                                    u"POSTE",
                                                    u"REGION",
                                                    u"REF",
                                                    u"STATUT"};

// Of a page only so many characters count.
inline constexpr std::size_t CharactersRated = 32000;

struct PageRating {
  double ScoreAnnonce = 0;  // with its half, when the page is a list of advertisements
  int ScoreMetiers = 0;     // rows of the job words, one that stands twice counted twice
  double Niveau = 1;        // width of the gauge
  bool stripOpens = false;  // the page looks enough like one for the capture strip
};

// Rates the text of a page; only the first ones count.
[[nodiscard]] PageRating RatePage(TextView bodyText, TextView address);

}  // namespace talvor
