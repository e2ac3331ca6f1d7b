// The contract vocabulary for `Nature`.
#pragma once

#include <array>

#include "base/text.h"

namespace talvor {

// A row is a list of search terms parted by commas, and the whole row is what `Nature` receives. The
// first row has a meaning of its own: such a contract lasts for an unlimited time. "INTERMITENT" has
// one T: that is the term that is searched for.
inline constexpr std::array<TextView, 12> ListeContrats{
    u"CDI,CONTRAT A DUREE INDETERMINEE",
    u"CDD,CONTRAT A DUREE DETERMINEE",
    u"CNE,CONTRAT NOUVELLE EMBAUCHE",
    u"INTERIM",
    u"PRESTATION",
    u"FREELANCE",
    u"SAISONNIER",
    u"CONTRAT JEUNE",
    u"CONTRAT ACCOMPAGNEMENT",
    u"CONTRAT AVENIR",
    u"INTERMITENT",
    u"EMPLOI NON SALARIE",
};

}  // namespace talvor
