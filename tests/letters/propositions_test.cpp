#include "letters/propositions.h"

#include <array>
#include <filesystem>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "letters/composer.h"
#include "letters/merge.h"
#include "tests/letters/letters_fixture.h"

namespace talvor {
namespace {

Propositions Table(std::vector<Text> lines) {
  Propositions table;
  table.Take(lines);
  return table;
}

const std::vector<Text> Lines{
    u"1;un",           u"1;deux",        u"1;trois", u"2;sentence ten a", u"2;sentence ten b",
    u"2;(e) token at", u"2;last of two", u"4;",      u"4;quatre"};

struct Walk {
  const char* reason;
  std::size_t group;
  Text from, previous, next;
  friend void PrintTo(const Walk& row, std::ostream* out) { *out << row.reason; }
};

class Walking : public testing::TestWithParam<Walk> {};

TEST_P(Walking, MovesToTheNeighbour) {
  const Propositions table = Table(Lines);
  EXPECT_EQ(table.Previous(GetParam().group, GetParam().from), GetParam().previous);
  EXPECT_EQ(table.Next(GetParam().group, GetParam().from), GetParam().next);
}

INSTANTIATE_TEST_SUITE_P(
    Sentences, Walking,
    testing::Values(
        Walk{"the first of all: back stays", 0, u"un", u"un", u"deux"},
        Walk{"the last: the wrap passes over positions 0 and 1", 0, u"trois", u"deux", u"trois"},
        Walk{"nothing in the group at position 0: next is its second", 0, u"", u"trois", u"deux"},
        Walk{"nothing: next is the first, back the last", 1, u"", u"last of two", u"sentence ten a"},
        Walk{"first of its group stops at the other group", 1, u"sentence ten a", u"sentence ten a",
             u"sentence ten b"},
        Walk{"ten characters alone are compared", 1, u"sentence ten b", u"sentence ten a", u"sentence ten b"},
        Walk{"a token among the ten hides its sentence", 1, u"e token at", u"e token at", u"sentence ten a"},
        Walk{"a text of the user's", 1, u"bonjour", u"bonjour", u"sentence ten a"},
        Walk{"a group without a line hangs nothing", 2, u"x", u"x", u"x"},
        Walk{"back to an empty sentence goes on to the last", 3, u"quatre", u"quatre", u""}));

TEST(PropositionTable, TakesTheFirst31LinesAndReachesTheLastByNextAlone) {
  std::vector<Text> lines;
  for (int i = 0; i < 40; ++i) lines.push_back(u"1;s" + NumberText(i));
  const Propositions table = Table(lines);
  EXPECT_EQ(table.Previous(0, u""), u"s29");
  EXPECT_EQ(table.Next(0, u"s29"), u"s30");
  EXPECT_EQ(table.Next(0, u"s30"), u"s2");
  EXPECT_EQ(table.Next(0, u"s31"), u"s2") << "that line is not in the table";

  EXPECT_EQ(Table({u"1;un", u"1;deux"}).Next(0, u"deux"), u"deux") << "no line that the wrap reaches";
}

TEST(PropositionTable, TheGroupIsTheNumberOfTheWholeLineAndEmptySentencesAreFilledOnce) {
  const Propositions table =
      Table({u"texte", u"12;x", u"1.5;y", u" 2 z", u"2", u"2\tb", u"3;", u"3;c", u"5 5e"});
  std::array<Text, CorpsCount> corps{u"", u"", u"", u"kept", u""};
  table.FillEmpty(corps);
  EXPECT_EQ(corps, (std::array<Text, CorpsCount>{u"", u" z", u"c", u"kept", u""}));
}

// The sentences that come with the program.
class Delivered : public LettersTest {
 protected:
  Delivered() : lines(ReadLines(std::filesystem::path{TALVOR_DATA_FOLDER} / "propositions.txt").value()) {}
  std::vector<Text> lines;
};

TEST_F(Delivered, AreFitForTheTable) {
  ASSERT_LE(lines.size(), Propositions::Positions);
  std::array<int, CorpsCount> count{};
  std::set<Text> beginnings;
  char16_t group = u'1';
  for (const Text& line : lines) {
    ASSERT_TRUE(line.starts_with(group) || line.starts_with(char16_t(group + 1))) << ToUtf8(line);
    group = line.front();
    ++count.at(static_cast<std::size_t>(group - u'1'));
    const Text beginning = line.substr(2, 10);
    EXPECT_TRUE(beginnings.insert(beginning).second) << "confused with another: " << ToUtf8(line);
    EXPECT_FALSE(Contains(beginning, u"(")) << "not recognised: " << ToUtf8(line);
  }
  for (const int sentences : count) EXPECT_GE(sentences, 4);
  const auto bytes = ReadBytes(std::filesystem::path{TALVOR_DATA_FOLDER} / "propositions.txt");
  EXPECT_EQ(*bytes, ToCodePage([&] {
    Text all;
    for (const Text& line : lines) all += line + Text{LineEnd};
    return all;
  }()));
}

TEST_F(Delivered, LeaveNoTagAndNoTokenInAnyLetter) {
  std::filesystem::copy(std::filesystem::path{TALVOR_DATA_FOLDER} / "propositions.txt", "propositions.txt");
  form.Charger();
  constexpr std::size_t longest = 8;  // sentences of a group
  CandidatureTexts candidature;
  for (const auto& field : CandidatureTags) candidature.*(field.text) = u"X";
  for (const char16_t* prenom : {u"Marie", u"Paul"})
    for (const std::size_t modele : {Printed, Mail}) {
      form.Nom = u"Durand";
      form.Prenom = prenom;
      form.Corps = {};
      SetFlag(form.Check_Modele, modele, true);
      // From the last sentence of each group back to the first.
      for (std::size_t step = 0; step < longest; ++step) {
        for (std::size_t i = 0; i < CorpsCount; ++i) form.PreviousSentence(i);
        MergedLetter letter;
        form.EnregistrerLettre();
        ASSERT_TRUE(
            FusionnerLettre(LetterFile(form.NomLettre), candidature, clock.today, letter, dialogs, shell));
        for (const TextView mark : {u"#", u"(e)", u"(x)", u"(se)"})
          ASSERT_FALSE(Contains(letter.Texte, mark) || Contains(letter.Objet, mark)) << ToUtf8(letter.Texte);
      }
    }
}

TEST(PropositionsOfAnEditor, AreReadInUtf8AsWell) {
  const ScratchFolder scratch;
  for (const std::string bytes : {"1;prêt\r\n1;à l’œuvre\r\n",
                                  "\xEF\xBB\xBF"
                                  "1;prêt\n1;à l’œuvre\n",
                                  "1;pr\xEAt\r\n1;\xE0 l\x92\x9Cuvre\r\n"}) {
    ASSERT_FALSE(WriteBytes("propositions.txt", bytes).Failed());
    Propositions table;
    table.Load();
    EXPECT_EQ(table.Next(0, u""), u"à l’œuvre") << bytes;
    EXPECT_EQ(table.Previous(0, u"à l’œuvre"), u"prêt") << bytes;
  }
}

}  // namespace
}  // namespace talvor
