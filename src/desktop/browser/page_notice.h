#pragma once

#include <QWidget>
#include <functional>

#include "desktop/widgets/theme.h"

class QLabel;

namespace talvor {

// Stands in the place of a page that cannot be shown: why, and a button to load it again.
class PageNotice : public QWidget {
 public:
  PageNotice(const Theme& theme, QWidget* parent);

  std::function<void()> OnReload;

  void ShowText(const QString& text);

 private:
  QLabel* text_;
};

}  // namespace talvor
