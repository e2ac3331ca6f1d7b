// The window of `MiseEnPage`.
#pragma once

#include <QDialog>

#include "desktop/widgets/theme.h"
#include "shell/mise_en_page.h"

namespace talvor {

class AdviceBox : public QDialog {
 public:
  // The view model must outlive the window.
  AdviceBox(MiseEnPage& form, const Theme& theme, QWidget* parent);

 protected:
  void reject() override { form_.BoutonTLV3(); }

 private:
  MiseEnPage& form_;
};

}  // namespace talvor
