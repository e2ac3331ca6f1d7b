// The window of `MiseEnPage`.
#pragma once

#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/theme.h"
#include "shell/mise_en_page.h"

namespace talvor {

class AdviceBox : public ScrollingDialog {
 public:
  // The view model must outlive the window.
  AdviceBox(MiseEnPage& form, const Theme& theme, QWidget* parent);

 protected:
  void reject() override { form_.Close(); }

 private:
  MiseEnPage& form_;
};

}  // namespace talvor
