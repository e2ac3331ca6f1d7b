// The words for the state of a candidature. Three lists exist and they differ: none is to be aligned
// with the others.
#pragma once

#include <array>

#include "base/text.h"

namespace talvor {

// The statuses that a user can give. Positions carry rules: the first is the default, the second is
// what a send sets, and those from index 3 and from index 5 on stamp dates and remarks.
inline constexpr std::array<TextView, 11> ListeStatuts{
    u"NON EMISE",
    u"EMISE - EN ATTENTE DE REPONSE",
    u"EMISE - SANS REPONSE",
    u"REPONSE - REFUS NET",
    u"REPONSE - REFUS MAIS CONSERVEE",
    u"ENTRETIEN A EFFECTUER",
    u"ENTRETIEN EFFECTUE - ATTENTE REPONSE",
    u"ENTRETIEN EFFECTUE - REFUS MAIS CONSERVEE",
    u"ENTRETIEN EFFECTUE - SECOND ENTRETIEN",
    u"ENTRETIEN D' EMBAUCHE",
    u"EMBAUCHE",
};

inline constexpr TextView NonEmise = ListeStatuts[0];

// The statuses that the statistics count. Five of them are never given by this program, and most of
// what it does give is not among them.
inline constexpr std::array<TextView, 10> ListeStatutsComptes{
    u"NON EMISE",
    u"EMISE - EN ATTENTE DE REPONSE",
    u"REPONSE - REFUS NET",
    u"REPONSE - REFUS MAIS CONSERVEE",
    u"REPONSE - ENTRETIEN",
    u"ENTRETIEN - ATTENTE REPONSE",
    u"ENTRETIEN - REFUS MAIS CONSERVEE",
    u"ENTRETIEN - SECOND ENTRETIEN",
    u"ENTRETIEN - EMBAUCHE",
    u"EMBAUCHE",
};

// Written by the ageing alone; in no list.
inline constexpr TextView SansReponseApresEntretien = u"SANS REPONSE APRES ENTRETIEN";

}  // namespace talvor
