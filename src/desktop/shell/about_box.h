#pragma once

#include <functional>

#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/theme.h"

namespace talvor {

// `APropos`: what the program is and since when.
class AboutBox : public ScrollingDialog {
 public:
  AboutBox(const Theme& theme, QWidget* parent);

  std::function<void()> OnGuide;  // the user's guide is asked for
};

}  // namespace talvor
