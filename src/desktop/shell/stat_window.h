#pragma once

#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/theme.h"
#include "reports/statistics.h"

namespace talvor {

// `FormStat`: counts by status, two calendars and the interviews to come, as they stood when it opened.
class StatWindow : public ScrollingDialog {
 public:
  // The model must outlive the window and must have been loaded.
  StatWindow(const FormStat& stat, const Theme& theme, QWidget* parent);

 private:
  QWidget* MakeBars();
  QWidget* MakeInterviews();
  QLayout* MakeCalendars();

  const FormStat& stat_;
  const Theme& theme_;
};

}  // namespace talvor
