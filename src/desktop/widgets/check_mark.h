// The mark of a check before a send: a pill with a sign and its word.
#pragma once

#include <QLabel>

#include "desktop/widgets/theme.h"
#include "sending/form_postuler.h"

namespace talvor {

class CheckMarkLabel : public QWidget {
 public:
  // The field that it speaks of repeats it to assistive tools.
  CheckMarkLabel(const Theme& theme, QWidget& field, QWidget* parent);

  void ShowMark(const CheckMark& mark);

 private:
  void Paint();

  const Theme& theme_;
  QWidget& field_;
  QLabel* sign_;
  QLabel* word_;
  CheckMark mark_;
};

}  // namespace talvor
