// The right pane of `FormCand`, `CadreWeb`: the address and the page.
#pragma once

#include <QWidget>
#include <functional>

#include "desktop/theme.h"

class QLineEdit;
class QVBoxLayout;
class QWebEngineView;

namespace talvor {

class BrowserPane : public QWidget {
 public:
  BrowserPane(const Theme& theme, QWidget* parent);

  std::function<void()> OnGo;  // Enter in the address

  // Makes the view of the page, once.
  QWebEngineView* MakeView();

 private:
  QVBoxLayout* column_;
  QWidget* blank_;
  QWebEngineView* view_ = nullptr;
};

}  // namespace talvor
