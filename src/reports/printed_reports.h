// reports: what is printed or counted over all candidatures.
#pragma once

#include <filesystem>
#include <functional>

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/environment.h"
#include "platform/page_preview.h"
#include "platform/shell.h"
#include "tracking/store.h"
#include "workspace/principale.h"

namespace talvor {

// The list of candidatures, and the proof of job search for an employment office.
enum class ReportMode { Liste = 0, Justificatif = 1 };

// Hands on the page of a report row by row, lines ended by CR LF, in the table's order; nothing without
// any row. No more than a row is held at a time. The texts of the fields go in as they are, so the page must
// be shown without scripts and without access to anything. The proof speaks of 90 days and holds every row all
// the same.
void WriteReport(Database& database, ReportMode mode, const Identity& identity, Day today,
                 const std::function<void(TextView piece)>& out);

class PrintedReports {
 public:
  PrintedReports(const Principale& principale, const Clock& clock, const Environment& environment,
                 Dialogs& dialogs, Shell& shell, PagePreview& preview);

  // Writes the page to ImpTalvor.html in the folder of `temp` and opens its preview. A page that does
  // not come within about five seconds is told. Throws StoreError when the engine fails, and
  // std::filesystem::filesystem_error when the file cannot be written.
  void ImprimerListe(ReportMode mode);

 private:
  [[nodiscard]] std::filesystem::path WritePage(ReportMode mode) const;
  [[nodiscard]] bool WaitForPage();

  const Principale& principale_;
  const Clock& clock_;
  const Environment& environment_;
  Dialogs& dialogs_;
  Shell& shell_;
  PagePreview& preview_;
};

}  // namespace talvor
