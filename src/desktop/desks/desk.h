// What the desks of the program have in common. A desk owns forms with their windows and registers them
// with the shell when it is made; the ways to other desks are taken later, so desks are made in any order.
#pragma once

#include <functional>

#include "capture/form_cand_web.h"
#include "cv/editor.h"
#include "desktop/platform/qt_shell.h"
#include "desktop/widgets/theme.h"
#include "letters/merge.h"
#include "platform/environment.h"
#include "platform/pickers.h"
#include "reports/printed_reports.h"

namespace talvor {

class MainWindow;

// What crosses the desks: each function is set by the desk that it leads to.
struct DeskWays {
  // -- The program: its header and its pages show what has changed; what was typed in the editors of
  // documents reaches the disk; no form goes on with its document.
  std::function<void()> refresh, keepTyping, closeDocuments;

  // -- Home panel.
  std::function<void()> refreshHome;

  // -- Candidatures. What asks for the window does nothing while it is closed.
  std::function<FormCand&()> formCand;                 // as it stands: a new one at each load of its form
  std::function<CandidatureTexts()> candidatureTexts;  // of its fields
  std::function<void()> showWebPane, goToStartPage;
  std::function<void()> candidatureChanged;            // by another desk
  std::function<void()> readCandidatures;              // the database is another one
  std::function<void(TextView item)> candidatureMenu;  // an item of its menus has been chosen

  // -- CVs.
  std::function<FormRedigerCV&()> cvEditor;
  std::function<void(TextView name)> openCv;
  std::function<void()> printCv;

  // -- Letters.
  std::function<void()> newLetter;
  std::function<void(TextView name)> openLetter;

  // -- Menus of the slots.
  std::function<void()> attachCv;

  // -- Reports.
  std::function<void(ReportMode mode)> printReport;

  // -- Applying.
  std::function<void(const ApplyRequest& request)> apply;
  std::function<void()> applyFromMenu;
  std::function<ApplyTexts()> applyTexts;  // of the apply form, empty while it is not loaded
};

// What every desk stands on; all of it must outlive the desk.
struct DeskSurroundings {
  QtShell& shell;
  Principale& principale;
  MainWindow& main;
  const Theme& theme;
  const Environment& environment;
  const Clock& clock;
  Dialogs& dialogs;
  Pickers& pickers;
  DeskWays& ways;
};

class Desk {
 public:
  Desk() = default;
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;
  virtual ~Desk() = default;

  // What was typed in its documents reaches the disk. Every desk is asked for it before any desk is asked
  // for what follows: the database may fail there, and no document is to be lost with it.
  virtual void KeepTyping() {}
  // The user turns to the main menu: what was typed elsewhere is kept, too.
  virtual void Leave() {}
  // The main window has been closed. Waits of a form end with the form; the event loop alone would leave
  // them turning.
  virtual void Close() { Leave(); }
  // The data is about to change under the forms: what was typed is saved where it belongs, and no form
  // goes on with a document that is no longer there.
  virtual void CloseDocuments() {}
  // No timer ticks any more: a failure has been caught.
  virtual void Stop() {}
};

}  // namespace talvor
