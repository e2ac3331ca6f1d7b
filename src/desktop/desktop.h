// The whole program over its windows: the desks, and what is asked of all of them.
#pragma once

#include <memory>

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/environment.h"
#include "platform/pickers.h"

namespace talvor {

class BackupDesk;
class CandidatureDesk;
class CvDesk;
class LetterDesk;
class LibraryDesk;
class MainWindow;
class Principale;
class QtShell;
class ReportDesk;
class SendingDesk;
class Theme;

class Desktop {
 public:
  // What the program runs on must outlive it. Files are picked with the dialogs of Qt unless others are
  // given.
  Desktop(const Theme& theme, const Environment& environment, const Clock& clock, Dialogs& dialogs,
          Pickers* pickers = nullptr);
  ~Desktop();

  // The start of the program, from the splash to the home panel. False when it is to end at once, the
  // reason told. Throws StoreError when the database fails.
  [[nodiscard]] bool Start();
  // The same without the splash and its waits.
  [[nodiscard]] bool StartAtOnce();
  // No timer ticks any more: a failure has been caught.
  void Stop();

  [[nodiscard]] MainWindow& Main();
  [[nodiscard]] QtShell& Windows();
  [[nodiscard]] Principale& Model();
  [[nodiscard]] CandidatureDesk& Candidatures();
  [[nodiscard]] LetterDesk& Letters();
  [[nodiscard]] CvDesk& Cv();
  [[nodiscard]] SendingDesk& Sending();
  [[nodiscard]] LibraryDesk& Library();
  [[nodiscard]] ReportDesk& Reports();
  [[nodiscard]] BackupDesk& Backup();

 private:
  void OfferWays();
  void ConnectMain();
  bool LoadPrincipale();

  const Environment& environment_;
  const Clock& clock_;
  Dialogs& dialogs_;
  struct Parts;
  std::unique_ptr<Parts> parts_;
  bool placeKnown_ = false;  // from the last run
};

}  // namespace talvor
