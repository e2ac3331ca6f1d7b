#include "desktop/letters/letter_tags.h"

#include <QEvent>
#include <QRegularExpression>
#include <algorithm>

namespace talvor {
namespace {

constexpr int LongRun = 40;        // blanks from which a run stands for the right half
constexpr double RightHalf = 0.5;  // where that half begins, in widths of the paper

}  // namespace

TagHighlighter::TagHighlighter(const Theme& theme, QPlainTextEdit& edit)
    : QSyntaxHighlighter(edit.document()), theme_(theme), edit_(edit) {
  connect(&theme, &Theme::Changed, this, &TagHighlighter::TintAnew);
  edit.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // lines are wrapped
  edit.viewport()->installEventFilter(this);
}

// The text stays the same, so the widget has no change to report.
void TagHighlighter::TintAnew() {
  const QSignalBlocker quiet(edit_);
  rehighlight();
}

void TagHighlighter::highlightBlock(const QString& text) {
  static const QRegularExpression tag(QStringLiteral("#\\w+#"),
                                      QRegularExpression::UseUnicodePropertiesOption);
  NarrowBlanks(text);
  QTextCharFormat look;
  look.setForeground(theme_.Color(QStringLiteral("new")));
  look.setBackground(theme_.Color(QStringLiteral("newsoft")));
  look.setFontWeight(QFont::Medium);
  for (auto found = tag.globalMatch(text); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    setFormat(static_cast<int>(match.capturedStart()), static_cast<int>(match.capturedLength()), look);
  }
}

void TagHighlighter::NarrowBlanks(const QString& text) {
  int blanks = 0;
  while (blanks < text.size() && text[blanks] == QLatin1Char(' ')) ++blanks;
  if (blanks < LongRun) return;
  const double blank = QFontMetricsF(edit_.font()).horizontalAdvance(QLatin1Char(' '));
  const double narrow = std::min(0.0, RightHalf * edit_.viewport()->width() / blanks - blank);
  QTextCharFormat look;
  look.setFontLetterSpacingType(QFont::AbsoluteSpacing);
  look.setFontLetterSpacing(narrow);
  setFormat(0, blanks, look);
}

bool TagHighlighter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && edit_.viewport()->width() != shownWidth_) {
    shownWidth_ = edit_.viewport()->width();
    TintAnew();
  }
  return QSyntaxHighlighter::eventFilter(watched, event);
}

}  // namespace talvor
