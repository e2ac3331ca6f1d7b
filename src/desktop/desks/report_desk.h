// What is counted and printed over all candidatures: the form `FormStat` and the printed reports.
#pragma once

#include "desktop/desks/desk.h"
#include "desktop/platform/print_preview.h"
#include "reports/printed_reports.h"
#include "reports/statistics.h"

namespace talvor {

class ReportDesk : public Desk {
 public:
  explicit ReportDesk(const DeskSurroundings& around);

  [[nodiscard]] QtPagePreview& Preview() { return preview_; }

 private:
  QWidget* MakeWindow(QWidget* parent);

  DeskSurroundings around_;
  FormStat form_;
  QtPagePreview preview_;
  PrintedReports reports_;
};

}  // namespace talvor
