#include "cv/paragraph.h"

#include "base/fonctionnel.h"

namespace talvor {
namespace {

constexpr TextView Break = u"<br>";

// A bullet is any character with a blank behind it: a line that begins with "1 " loses both too.
TextView WithoutBullet(TextView line) { return line.size() >= 2 && line[1] == u' ' ? line.substr(2) : line; }

// `number` is 0-based, `before` the line in front as it was left without its bullet.
bool IsHeading(TextView line, std::size_t number, TextView before) {
  const TextView trimmed = TrimBlanks(line);
  return ValeurNumerique(line) != 0                       // a period that begins with a year
         || UpperCase(line.substr(0, 3)) == u"DE "        // «De 1998 à 2002»
         || number == 0 || NumeroMois(line) > 0           // a month; an empty line counts as one
         || (!trimmed.empty() && trimmed.back() == u':')  //
         || TrimBlanks(before).empty();
}

void AddHeading(Text& html, TextView line, ParagraphStyle style) {
  // The closing tags are wrongly nested, and stay so.
  if (style.boldHeadings && style.underlinedHeadings)
    html.append(u"<b><u>").append(line).append(u"</b></u><br>");
  else if (style.boldHeadings)
    html.append(u"<b>").append(line).append(u"</b><br>");
  else if (style.underlinedHeadings)
    html.append(u"<u>").append(line).append(u"</u><br>");
  else
    html.append(line).append(Break);
}

void AddDetail(Text& html, TextView line, ParagraphStyle style) {
  if (style.indentedDetails)
    html.append(u"<span style='display:block; padding-left:40px'>").append(line).append(u"<br></span>");
  else
    html.append(line).append(Break);
}

}  // namespace

std::optional<Text> FormatParagraph(TextView text, ParagraphStyle style, std::size_t limit) {
  const Text withoutTabs = ReplaceAll(text, u"\t", u" ");

  // One line break is dropped at each end, and no more.
  TextView body = TrimBlanks(withoutTabs);
  if (body.ends_with(LineEnd)) body.remove_suffix(LineEnd.size());
  if (body.starts_with(LineEnd)) body.remove_prefix(LineEnd.size());

  Text html;
  TextView before;
  std::size_t number = 0;
  for (TextView line : Split(body, LineEnd)) {
    line = WithoutBullet(line);
    if (IsHeading(line, number, before)) {
      if (number > 0 && style.breakBeforePeriod) html.append(Break);
      AddHeading(html, line, style);
    } else {
      AddDetail(html, line, style);
    }
    if (html.size() > limit) return std::nullopt;
    before = line;
    ++number;
  }
  if (html.ends_with(Break)) html.erase(html.size() - Break.size());
  return html;
}

}  // namespace talvor
