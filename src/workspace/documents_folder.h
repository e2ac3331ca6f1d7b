// The user's documents folder, and the converted CVs that lie in it.
//
// On an older layout of the operating system the folder has another name. The conversion, the menu of a
// slot and the list of the apply form follow the layout; the editor and the slots of the apply form look
// into "Documents" on every system, so that on an older one they miss what was converted. Both are wanted.
#pragma once

#include <filesystem>

#include "base/text.h"
#include "platform/environment.h"

namespace talvor {

enum class DocumentsLayout { OfTheSystem, Newer };

// The folder, with a "/" at its end: "Documents", or "Mes documents" on the older layout. A folder of the
// older layout that stands under that name in another case is that folder.
[[nodiscard]] Text DocumentsFolder(const Environment& environment,
                                   DocumentsLayout layout = DocumentsLayout::OfTheSystem);

// Where a CV stands once converted; `ending` is that of the format («.doc»). The document need not exist.
[[nodiscard]] std::filesystem::path ConvertedCv(const Environment& environment, DocumentsLayout layout,
                                                TextView nomCV, TextView ending);

// The last word-processor version of a CV, told by the name of the CV's file: the document that exists,
// without regard to the case of its name, or where it would stand when there is none. «.dat» becomes «.doc»
// wherever it stands in the name; a name without it is that of a document already.
[[nodiscard]] std::filesystem::path LastWordVersion(const Environment& environment, DocumentsLayout layout,
                                                    TextView cvFile);

}  // namespace talvor
