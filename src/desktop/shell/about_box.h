#pragma once

#include <QDialog>
#include <functional>

#include "desktop/widgets/theme.h"

namespace talvor {

// `APropos`: what the program is and since when.
class AboutBox : public QDialog {
 public:
  AboutBox(const Theme& theme, QWidget* parent);

  std::function<void()> OnGuide;  // the user's guide is asked for
};

}  // namespace talvor
