// The user's guide, in a window of its own: the document docs/guide.md with its pictures.
#pragma once

#include "base/text.h"
#include "desktop/widgets/scrolling.h"
#include "desktop/widgets/theme.h"
#include "platform/forms.h"

class QTextBrowser;

namespace talvor {

class UserGuideWindow : public ScrollingDialog {
 public:
  UserGuideWindow(const Theme& theme, QWidget* parent);

  [[nodiscard]] QTextBrowser& Pages() { return *text_; }

 private:
  void ShowChapter(const QUrl& link);

  QTextBrowser* text_;
};

}  // namespace talvor
