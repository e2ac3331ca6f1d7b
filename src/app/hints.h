// What the user is told on the way to a first candidature.
#pragma once

#include "base/text.h"

namespace talvor::hints {

inline constexpr TextView NewCandidature =
    u"Pour créer une nouvelle candidature, vous pouvez effectuer un copier/coller dans la zone description, "
    u"les informations détaillées s'auto-alimenteront";
inline constexpr TextView Capture =
    u"Positionnez-vous sur une annonce puis cliquez sur le lien 'Enregistrer cette annonce' qui apparaîtra "
    u"alors ci-dessus pour la répertorier dans votre base";

}  // namespace talvor::hints
