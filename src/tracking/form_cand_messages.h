// The words of `FormCand` for the user.
#pragma once

#include "base/text.h"

namespace talvor::messages {

// An empty title while the browser pane is in use, and otherwise.
inline constexpr TextView NotIdentified =
    u"Talvor n'a pas réussi à identifier correctement l'annonce. Pour faciliter la capture, sélectionnez en "
    u"premier lieu le texte relatif à l'annonce puis cliquer sur 'Capturer la sélection'";
inline constexpr TextView TitleRequired = u"L'intitulé est obligatoire";
inline constexpr TextView BadDate = u"La date est incorrecte";

inline constexpr TextView ConfirmDelete = u"Confirmez-vous la suppression de cette candidature ?";
inline constexpr TextView ConfirmDeleteAll = u"Confirmez-vous la suppression de toutes les candidatures ?";
// The main menu asks in its own words.
inline constexpr TextView ConfirmDeleteAllFromMenu =
    u"Conformez-vous la suppression de toutes les candidatures ?";

inline constexpr TextView OutOfReach =
    u"Cette candidature est hors de portée de la liste\u00A0: son numéro dépasse 32767.";

}  // namespace talvor::messages
