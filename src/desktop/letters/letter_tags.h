#pragma once

#include <QPlainTextEdit>
#include <QSyntaxHighlighter>

#include "desktop/widgets/theme.h"

namespace talvor {

// Tints the tags of a text (#Societe#) and narrows the long runs of blanks that put a line on the right
// half of the page, so that such a line fits the paper whatever its width.
class TagHighlighter : public QSyntaxHighlighter {
 public:
  TagHighlighter(const Theme& theme, QPlainTextEdit& edit);

 protected:
  void highlightBlock(const QString& text) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TintAnew();
  void NarrowBlanks(const QString& text);

  const Theme& theme_;
  QPlainTextEdit& edit_;
  int shownWidth_ = 0;
};

}  // namespace talvor
