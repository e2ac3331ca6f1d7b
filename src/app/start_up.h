// The start of the program without its windows.
#pragma once

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/environment.h"
#include "workspace/principale.h"

namespace talvor {

enum class StartOutcome { Ready, NoDatabase };

// Makes the folders of CVs, letters and candidatures in the usual data folder and moves the process
// there. A step that fails is passed over: the data folder itself is laid down by the installation.
void PreparerDossier(const Environment& environment);

// The load of the main window: fills the menu, finds the database in the current directory or in the
// usual data folder (which then becomes the current directory), counts its rows, takes the copy of the
// day, ages the statuses and reads the identity of the first CV. A base that is in neither place is
// told, and the program must end. Throws StoreError when the engine fails.
[[nodiscard]] StartOutcome ChargerPrincipale(Principale& principale, const Environment& environment,
                                             const Clock& clock, Dialogs& dialogs);

}  // namespace talvor
