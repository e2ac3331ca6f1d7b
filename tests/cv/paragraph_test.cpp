#include "cv/paragraph.h"

#include <gtest/gtest.h>

#include <ostream>

namespace talvor {
namespace {

constexpr ParagraphStyle Plain{};
constexpr ParagraphStyle Bold{.boldHeadings = true};
constexpr ParagraphStyle Usual{.boldHeadings = true, .indentedDetails = true};
constexpr std::size_t NoLimit = 1'000'000'000;

Text Format(TextView text, ParagraphStyle style) { return FormatParagraph(text, style, NoLimit).value(); }

struct Line {
  TextView line;
  TextView html;  // the line as it stands behind a first line, headings in bold
  const char* reason;
  friend void PrintTo(const Line& row, std::ostream* out) { *out << row.reason; }
};

class ParagraphLines : public testing::TestWithParam<Line> {};

TEST_P(ParagraphLines, AreHeadingsOrDetails) {
  EXPECT_EQ(Format(u"Début\r\n" + Text{GetParam().line} + u"\r\nfin", Bold),
            u"<b>Début</b><br>" + Text{GetParam().html} + u"<br>fin");
}

INSTANTIATE_TEST_SUITE_P(
    FormatParagraph, ParagraphLines,
    testing::Values(Line{u"Chef de projet", u"Chef de projet", "a detail"},
                    Line{u"1998 - 2002", u"<b>1998 - 2002</b>", "digits in front"},
                    Line{u"0 défaut", u"défaut", "zero is no number, and loses itself as a bullet"},
                    Line{u"00 défaut", u"00 défaut", "zero is no number"},
                    Line{u"De 1998 à 2002", u"<b>De 1998 à 2002</b>", "DE in any case"},
                    Line{u"Depuis 2002", u"Depuis 2002", "DE must be a word"},
                    Line{u"Juin 2004", u"<b>Juin 2004</b>", "a month"}, Line{u"Lundi", u"Lundi", "no month"},
                    Line{u"C", u"<b>C</b>", "one letter can stand inside a month"},
                    Line{u"Outils : ", u"<b>Outils : </b>", "a colon at the end, blanks aside"},
                    Line{u"- Gestion", u"Gestion", "a bullet"}, Line{u"-Gestion", u"-Gestion", "no bullet"},
                    Line{u"• 2001 : Paris", u"<b>2001 : Paris</b>", "the bullet goes first"},
                    Line{u"1 stage", u"stage", "a digit is a bullet too"}, Line{u"AB", u"AB", "too short"},
                    Line{u"-\tGestion", u"Gestion", "a tab is a blank"},
                    Line{u"- - Gestion", u"- Gestion", "one bullet and no more"},
                    Line{u"<i>x</i> & y", u"<i>x</i> & y", "markup goes in raw"}));

TEST(FormatParagraph, AnEmptyLineIsAHeadingAndMakesTheNextOneAHeading) {
  EXPECT_EQ(Format(u"2001 : Paris\r\nChef de projet\r\n\r\nStage\r\nfin", Bold),
            u"<b>2001 : Paris</b><br>Chef de projet<br><b></b><br><b>Stage</b><br>fin");
  EXPECT_EQ(Format(u"a\r\n- \r\nStage", Bold), u"<b>a</b><br><b></b><br><b>Stage</b>")
      << "the line before counts without its bullet";
  EXPECT_EQ(Format(u"", Bold), u"<b></b>");
}

TEST(FormatParagraph, StylesWrapHeadingsAndDetails) {
  const Text text = u"2001\r\nxyz\r\n2002";
  EXPECT_EQ(Format(text, Plain), u"2001<br>xyz<br>2002");
  EXPECT_EQ(Format(text, {.underlinedHeadings = true}), u"<u>2001</u><br>xyz<br><u>2002</u>");
  EXPECT_EQ(Format(text, {.boldHeadings = true, .underlinedHeadings = true, .breakBeforePeriod = true}),
            u"<b><u>2001</b></u><br>xyz<br><br><b><u>2002</b></u>");
  EXPECT_EQ(Format(u"2001\r\nxyz", Usual),
            u"<b>2001</b><br><span style='display:block; padding-left:40px'>xyz<br></span>")
      << "a detail at the end keeps its break inside";
}

TEST(FormatParagraph, OneLineBreakIsDroppedAtEachEnd) {
  EXPECT_EQ(Format(u" \t\r\na\r\n ", Plain), u"a");
  EXPECT_EQ(Format(u"\r\n\r\na\r\n\r\n", Plain), u"<br>a<br>");
}

TEST(FormatParagraph, ManyLinesStayWithinTheLimitOrGiveNothing) {
  Text lines;
  for (int i = 0; i < 300'000; ++i) lines += u"x\r\n";
  EXPECT_TRUE(FormatParagraph(lines, Usual, NoLimit).has_value());
  EXPECT_FALSE(FormatParagraph(lines, Usual, 1'000'000).has_value());
}

}  // namespace
}  // namespace talvor
