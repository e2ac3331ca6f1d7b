// Where the text of an advertisement ends and the furniture of its page begins.
#pragma once

#include "base/text.h"

namespace talvor {

// The end markers of an advertisement as delivered, one to a line: a digit, which is 1 for a marker
// in force, and the text. The last line ends in a line end.
inline constexpr TextView TermFinDelivered =
    u"1Offre suivante >>\r\n"
    u"1Avec l'Apec et Linked\r\n"
    u"1Joindre un CV de taille\r\n"
    u"1Déposez votre CV WORD\r\n"
    u"1Offres en relation\r\n"
    u"1Pour postuler à cette offre\r\n"
    u"1Réduire la fenêtre\r\n";

}  // namespace talvor
