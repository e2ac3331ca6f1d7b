#pragma once

#include <QDialog>

#include "desktop/theme.h"

namespace talvor {

// `APropos`: what the program is and since when.
class AboutBox : public QDialog {
 public:
  AboutBox(const Theme& theme, QWidget* parent);
};

}  // namespace talvor
