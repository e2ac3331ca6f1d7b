#pragma once

#include <QFrame>
#include <functional>

#include "desktop/widgets/theme.h"

class QLabel;

namespace talvor {

// A file that a page offers without having been asked for it, above the page: what it is, and a button to
// save it. It never takes the focus, so that no key meant for the page saves anything.
class DownloadBar : public QFrame {
 public:
  DownloadBar(const Theme& theme, QWidget* parent);

  std::function<void()> OnSave;
  std::function<void()> OnDismiss;

  // An empty text hides the bar.
  void ShowText(const QString& text);

 private:
  QLabel* text_;
};

}  // namespace talvor
