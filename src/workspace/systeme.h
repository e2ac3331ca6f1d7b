// What the forms ask of the system: documents that open, windows of other programs.
#pragma once

#include "platform/dialogs.h"
#include "platform/documents.h"

namespace talvor {

// Opens a web address or a file with the program of its kind. A file that is not there, and one that no
// program takes, are told.
void OuvrirDocument(TextView target, Documents& documents, Dialogs& dialogs);

// Tells that no program has opened the address or the file, and where the file is.
void TellNotOpened(TextView target, Dialogs& dialogs);

// The title of the first window that holds "http", empty when there is none.
[[nodiscard]] Text FenetreHttp(const Documents& documents);

// True while a window of a word processor that the conversion drives is open.
[[nodiscard]] bool TraitementTexteOuvert(const Documents& documents);

}  // namespace talvor
