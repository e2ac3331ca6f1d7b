// The layout of the three long paragraphs: studies, experience and skills.
#pragma once

#include <optional>

#include "base/text.h"

namespace talvor {

struct ParagraphStyle {
  bool boldHeadings = false;
  bool underlinedHeadings = false;
  bool indentedDetails = false;
  bool breakBeforePeriod = false;
};

// The lines (parted by CR LF) as HTML, headings told apart from details; bullets are dropped. The
// text goes into the markup as it stands. Nothing when the result would be longer than `limit`.
[[nodiscard]] std::optional<Text> FormatParagraph(TextView text, ParagraphStyle style, std::size_t limit);

}  // namespace talvor
