#include "base/fonctionnel.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

#include "base/day.h"

namespace talvor {
namespace {

TEST(SansAccents, FoldsSevenLettersAndNoOther) {
  EXPECT_EQ(SansAccents(u"éèêàïûô"), u"EEEAIUO");
  EXPECT_EQ(SansAccents(u"çâëîùüñß"), u"ÇÂËÎÙÜÑß");
}

struct FirstName {
  TextView name;
  bool feminine;
  const char* reason;
  friend void PrintTo(const FirstName& row, std::ostream* out) { *out << ToUtf8(row.name); }
};

class FirstNames : public testing::TestWithParam<FirstName> {};

TEST_P(FirstNames, AreToldByTheirEndings) {
  EXPECT_EQ(EstPrenomFeminin(GetParam().name), GetParam().feminine) << GetParam().reason;
}

INSTANTIATE_TEST_SUITE_P(
    EstPrenomFeminin, FirstNames,
    testing::Values(FirstName{u"", false, "empty"}, FirstName{u"Noémie", true, "IE behind folding"},
                    FirstName{u"Marion", false, "N decides before ON"},
                    FirstName{u"Jeanne", false, "JEAN shuts NNE out"},
                    FirstName{u"Jean-Marie", false, "JEAN shuts IE out"},
                    FirstName{u"Marie-Laure", true, "MARIE in front"},
                    FirstName{u"Marie-Fleur", false, "R decides before MARIE"},
                    FirstName{u"Claire", false, "IRE is no ending"}, FirstName{u"Anne", true, "NNE"},
                    FirstName{u"Brunehilde", true, "ILDE"}, FirstName{u"Louis", false, "S"},
                    FirstName{u"Inès", true, "ES behind folding"},
                    FirstName{u"Zoë", false, "Ë is not folded"}, FirstName{u"A", true, "one letter"}));

struct Form {
  TextView text;
  TextView normal;
  friend void PrintTo(const Form& row, std::ostream* out) { *out << ToUtf8(row.text); }
};

class NormalForms : public testing::TestWithParam<Form> {};

TEST_P(NormalForms, HoldCapitalsDigitsSlashesAndLineMarks) {
  EXPECT_EQ(Normaliser(GetParam().text), GetParam().normal);
}

INSTANTIATE_TEST_SUITE_P(Normaliser, NormalForms,
                         testing::Values(Form{u"Jean-Pierre d'Arc (Paris)", u"JEAN PIERRE D ARC PARIS"},
                                         Form{u"  ", u""}, Form{u"a\r\nb", u"A . B"}, Form{u"a\nb", u"A B"},
                                         Form{u"a\rb\r", u"A . B ."}, Form{u"\r\n\r\na", u". . A"},
                                         Form{u"Ç ça", u"A"},
                                         Form{u"12/03 30 K€, x@y_z.fr", u"12/03 30 K X Y Z FR"},
                                         Form{u"\u00A0é\u2019ÿœ😀z", u"E Z"}, Form{u"a\t\bb", u"A B"}));

TEST(Normaliser, TenRoundsLeaveABlankForEach1024) {
  const auto between = [](std::size_t blanks) {
    return Normaliser(u"A" + Text(blanks, u' ') + u"B").size() - 2;
  };
  EXPECT_EQ(between(1024), 1u);
  EXPECT_EQ(between(1025), 2u);
  EXPECT_EQ(between(2048), 2u);
  EXPECT_EQ(between(2049), 3u);
  // A line end joins the run: the CR's own blank and the one in front of the mark.
  EXPECT_EQ(Normaliser(u"A" + Text(1022, u' ') + u"\rB"), u"A . B");
  EXPECT_EQ(Normaliser(u"A" + Text(1023, u' ') + u"\rB"), u"A  . B");
  EXPECT_EQ(Normaliser(Text(5000, u' ') + u"A" + Text(5000, u' ')), u"A");
}

// The rounds themselves, as the measure of the shortcut that counts runs.
Text NormaliserInRounds(TextView text) {
  Text built;
  for (const char16_t c : SansAccents(text)) {
    const bool known = (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'/';
    built += known ? c : u' ';
    if (c == u'\r') built += u" . ";
  }
  for (int round = 0; round < 10; ++round) built = ReplaceAll(built, u"  ", u" ");
  return Text{TrimBlanks(built)};
}

TEST(Normaliser, AgreesWithTheTenRoundsOnRandomTexts) {
  static constexpr TextView Alphabet = u"aÉ9/ \r\n.-'ç€  \r";
  unsigned seed = 12345;
  for (int i = 0; i < 300; ++i) {
    Text text;
    for (unsigned k = 0; k < 40; ++k) {
      seed = seed * 1103515245u + 12345u;
      const unsigned pick = seed >> 16;
      text.append(pick % 97 == 0 ? 700 + pick % 900 : 1, Alphabet[pick % Alphabet.size()]);
    }
    ASSERT_EQ(Normaliser(text), NormaliserInRounds(text)) << ToUtf8(text);
  }
}

struct Month {
  TextView text;
  int number;
  friend void PrintTo(const Month& row, std::ostream* out) { *out << ToUtf8(row.text); }
};

class Months : public testing::TestWithParam<Month> {};

TEST_P(Months, AreTheNearestToTheFirstMatch) { EXPECT_EQ(NumeroMois(GetParam().text), GetParam().number); }

INSTANTIATE_TEST_SUITE_P(NumeroMois, Months,
                         testing::Values(Month{u"Juin", 6}, Month{u"Juillet 2004", 6}, Month{u"Août", 8},
                                         Month{u"Décembre 12", 12}, Month{u"Lundi", 0}, Month{u"", 1},
                                         Month{u"janvier", 1}, Month{u"AN ", 1},
                                         Month{u"N F", 2},   // position 3: 1.5 goes up to the even 2
                                         Month{u"V M", 2},   // position 7: 2.5 goes down to the even 2
                                         Month{u"C", 10}));  // inside OCT

TEST(NomPropre, OnlyABlankStartsAWord) {
  EXPECT_EQ(NomPropre(u"jean pierre"), u"Jean Pierre");
  EXPECT_EQ(NomPropre(u"JEAN-PIERRE d'ARTAGNAN ÉLISE"), u"Jean-pierre D'artagnan Élise");
  EXPECT_EQ(NomPropre(u""), u"");
}

TEST(CodePostalValide, ChecksTheFormAlone) {
  EXPECT_TRUE(CodePostalValide(u"00000"));
  for (const TextView text : {u"7500", u"75 01", u"750011", u"", u"7500A", u"７5001"})
    EXPECT_FALSE(CodePostalValide(text));
}

struct Value {
  TextView text;
  double value;
  friend void PrintTo(const Value& row, std::ostream* out) { *out << ToUtf8(row.text); }
};

class Values : public testing::TestWithParam<Value> {};

TEST_P(Values, AreThoseOfTheLongestPrefix) {
  EXPECT_DOUBLE_EQ(ValeurNumerique(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(ValeurNumerique, Values,
                         testing::Values(Value{u"06 07 08", 60708}, Value{u"12/03/2007", 12},
                                         Value{u"TEL", 0}, Value{u"", 0}, Value{u" \t\n1\t2", 12},
                                         Value{u"1\r2", 1}, Value{u"1\u00A02", 1}, Value{u"1.5.7", 1.5},
                                         Value{u".5", 0.5}, Value{u"-3", 0}, Value{u"2E3x", 2000},
                                         Value{u"2D 3", 2000}, Value{u"2e3", 2}, Value{u"2E-3", 2},
                                         Value{u"2E", 2}, Value{u"E5", 0}, Value{u"0E9999", 0},
                                         Value{u"&H1f", 31}, Value{u"&O17 9", 15}, Value{u"&17", 0},
                                         Value{u"1,5", 1}));

TEST(ValeurNumerique, StaysFinite) {
  EXPECT_TRUE(ValeurNumerique(u"9E99999") < std::numeric_limits<double>::infinity());
  EXPECT_GT(ValeurNumerique(Text(5000, u'9')), 1e300);
}

TEST(ParseDate, TakesFrenchDatesDayFirst) {
  const Day day = *DayOf({2007, 3, 12});
  for (const TextView text : {u"12/03/2007", u"12-3-2007", u"12.03.2007", u"12 03 2007", u"12 mars 2007",
                              u"12 MARS 07", u" 12/03/07 ", u"12-mars-2007"})
    EXPECT_EQ(ParseDate(text), day) << ToUtf8(text);
  EXPECT_EQ(ParseDate(u"1er août 2009"), DayOf({2009, 8, 1}));
  EXPECT_EQ(ParseDate(u"1 déc. 99"), DayOf({1999, 12, 1}));
  EXPECT_EQ(ParseDate(u"29/02/2024"), DayOf({2024, 2, 29}));
  EXPECT_EQ(ParseDate(u"1/1/29"), DayOf({2029, 1, 1}));
  EXPECT_EQ(ParseDate(u"1/1/30"), DayOf({1930, 1, 1}));
}

TEST(ParseDate, RefusesAnythingElse) {
  for (const TextView text :
       {u"29/02/2023", u"31/04/2020", u"12/25/2007", u"03/2007", u"2007", u"2007-03-12", u"12/03", u"x",
        u"12/03/2007 14:00", u"12/03/200", u"12 mois 2007", u"0/1/2007", u"1/0/2007", u"12//2007",
        u"123/1/2007", u"1/1/0000", u"12/03/20077", u"1er/03/2007", u"3 jui 2007"})
    EXPECT_FALSE(ParseDate(text).has_value()) << ToUtf8(text);
  EXPECT_TRUE(DateValide(u"")) << "an empty field is no mistake";
  EXPECT_FALSE(DateValide(u"demain"));
}

TEST(Day, CountsFromTheDatabasesOriginAndWritesItself) {
  EXPECT_EQ(DayOf({1899, 12, 30})->serial, 0);
  EXPECT_EQ(DayOf({1900, 3, 1})->serial, 61);
  EXPECT_EQ(DateText(*DayOf({2026, 1, 5})), u"05/01/2026");
  EXPECT_EQ(DateText(Day{DayOf({2024, 2, 1})->serial + 30}), u"02/03/2024");
  for (int serial = -10000; serial < 60000; serial += 37)
    EXPECT_EQ(ParseDate(DateText({serial})), Day{serial});
}

}  // namespace
}  // namespace talvor
