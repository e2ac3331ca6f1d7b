// sending: the application goes out: the apply form, the mail, the CV as a document to send.
//
// The mail: one prepared application handed to the user's mail client.
#pragma once

#include "platform/mail_client.h"

namespace talvor {

// Prepares the message and has the client show it. `pieces` are paths parted by ";", none when it is
// empty. `texte` loses one pair of line ends at its beginning and one at its end. True only if every
// step has worked; a step that fails does not stop those behind it. The current folder is the same
// afterwards.
[[nodiscard]] bool EnvoyerParMAPI(MailClient& client, TextView destinataire, TextView objet, Text& texte,
                                  TextView pieces);

}  // namespace talvor
