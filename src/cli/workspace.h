// A started program without windows: what the commands on a data folder work with.
#pragma once

#include <string>

#include "app/host.h"
#include "capture/form_cand_capture.h"
#include "cli/console.h"

namespace talvor::cli {

class Workspace {
 public:
  // Moves the process into the data folder (the usual one when `folder` is empty) and starts there, the
  // ageing included. The browser stands at `address`. Throws CommandError when there is no database.
  Workspace(const std::string& folder, Text address, Console& console);

  SystemEnvironment environment;
  SystemClock clock;
  ConsoleDialogs dialogs;
  ConsoleShell shell;
  ConsoleBrowser browser;
  Principale principale{shell};
  FormCand form{principale, clock, dialogs, shell, browser};
  FormCandCapture capture{form, clock, browser};
};

}  // namespace talvor::cli
