// The window of `FormConvert`.
#pragma once

#include <functional>

#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/theme.h"
#include "sending/form_convert.h"

namespace talvor {

class ConvertWindow : public ScrollingDialog {
 public:
  // The model must outlive the window and must have been loaded.
  ConvertWindow(FormConvert& form, const Theme& theme, QWidget* parent);

  // The user has closed the window.
  std::function<void()> OnClosed;

 private:
  QWidget* MakeProgram();
  QWidget* MakeLastVersion();
  QWidget* MakeFolder();
  QWidget* MakeFoot();
  // Runs a conversion, which closes the window.
  void Convert(const std::function<void()>& conversion);

  FormConvert& form_;
  const Theme& theme_;
  QWidget* convert_ = nullptr;
};

}  // namespace talvor
