#include "base/text.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <future>
#include <string>
#include <system_error>
#include <vector>

#include "base/code_page.h"
#include "base/line_file.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor {
namespace {

TEST(Utf8, MalformedBytesAreRefusedAndNotReplaced) {
  for (const char* bytes : {"\x80", "\xC3", "\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                            "a\xFFz", "\xE2\x82", "\xF8\x88\x80\x80\x80", "\xC3("})
    EXPECT_FALSE(FromUtf8(bytes).has_value()) << testing::PrintToString(std::string{bytes});
}

TEST(Utf8, EveryLengthOfSequenceSurvivesBothWays) {
  const std::string bytes = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x83";
  const auto text = FromUtf8(bytes);
  ASSERT_TRUE(text);
  EXPECT_EQ(*text, u"aé€\U0001F603");
  EXPECT_EQ(text->size(), 5u) << "an emoji counts two positions";
  EXPECT_EQ(ToUtf8(*text), bytes);
  EXPECT_EQ(ToUtf8(text->substr(0, 4)), "a\xC3\xA9\xE2\x82\xAC\xEF\xBF\xBD") << "half a pair";
}

TEST(Case, MapsOneCharacterToOneAndBackOverTheCodePage) {
  EXPECT_EQ(UpperCase(u"éèçœšžÿßñø"), u"ÉÈÇŒŠŽŸßÑØ");
  EXPECT_EQ(LowerCase(u"ÉÈÇŒŠŽŸßÑØ"), u"éèçœšžÿßñø");
  EXPECT_EQ(UpperCase(u"×÷ıſ"), u"×÷ıſ") << "neither signs nor letters that would map into ASCII";
  for (char16_t c = 0; c < 0x3000; ++c)
    if (ToUpper(c) != c) {
      ASSERT_EQ(ToLower(ToUpper(c)), c) << std::hex << int{c};
    }
}

TEST(Case, ComparisonSortsWithoutRegardToCase) {
  EXPECT_EQ(CompareIgnoringCase(u"Étoile", u"éTOILE"), 0);
  EXPECT_LT(CompareIgnoringCase(u"abc", u"ABCD"), 0);
  EXPECT_GT(CompareIgnoringCase(u"b", u"A"), 0);
}

TEST(Search, FindsAcrossTheBlocksOfALongText) {
  for (const std::size_t at : {0u, 1u, 62u, 63u, 64u, 65u, 127u, 128u, 200u}) {
    Text text(300, u'x');
    text.replace(at, 3, u"H/F");
    EXPECT_EQ(Find(text, u"H/F"), at);
    EXPECT_EQ(Find(text, u"H/F", at + 1), TextView::npos);
  }
  EXPECT_EQ(Find(u"ab", u"abc"), TextView::npos);
  EXPECT_EQ(Find(u"aab", u"ab"), 1u);
}

TEST(Search, ReplacementsNeverOverlapNorFeedThemselves) {
  EXPECT_EQ(ReplaceAll(u"aaa", u"aa", u"a"), u"aa");
  EXPECT_EQ(ReplaceAll(u"\r\n\r\n\r\n\r\n\r\n", u"\r\n\r\n", u"\r\n"), u"\r\n\r\n\r\n");
  EXPECT_EQ(ReplaceAll(u"", u"a", u"b"), u"");
}

TEST(Search, SplitKeepsEmptyPieces) {
  EXPECT_EQ(Split(u"", u","), std::vector<TextView>{u""});
  EXPECT_EQ(Split(u",a,,", u","), (std::vector<TextView>{u"", u"a", u"", u""}));
}

TEST(LineEnds, LfBecomesCrLfOnceAndALoneCrStays) {
  EXPECT_EQ(WithCrLf(u"a\nb\r\nc\rd\n\n"), u"a\r\nb\r\nc\rd\r\n\r\n");
}

TEST(CodePage, EveryByteBecomesACharacterAndThatByteAgain) {
  std::string all;
  for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
  const Text text = FromCodePage(all);
  ASSERT_EQ(text.size(), 256u);
  EXPECT_EQ(text[0x80], u'€');
  EXPECT_EQ(text[0x9F], u'Ÿ');
  EXPECT_EQ(ToCodePage(text), all);
}

TEST(CodePage, CharactersOutsideThePageSurviveAsReferences) {
  const Text text = u"Łódź \U0001F603 fin";
  EXPECT_EQ(ToCodePage(text),
            "&#321;\xF3"
            "d&#378; &#128515; fin");
  EXPECT_EQ(FromCodePage(ToCodePage(text)), text);
  const Text half{0xD83D, u'x'};
  EXPECT_EQ(FromCodePage(ToCodePage(half)), half);
}

TEST(CodePage, ReferencesToCharactersOfThePageAndBrokenOnesStayText) {
  for (const char* bytes :
       {"&#233;", "&#8364;", "&#;", "&#12", "&#x141;", "&#1114112;", "&#99999999;", "&#0321;", "&", "&#"})
    EXPECT_EQ(FromCodePage(bytes), *FromUtf8(bytes)) << bytes;
}

TEST(CodePage, CharacterCodeOutsideThePageIsTheQuestionMark) {
  EXPECT_EQ(CharacterCode(u'-'), 45);
  EXPECT_EQ(CharacterCode(u'’'), 146);
  EXPECT_EQ(CharacterCode(0xD83D), 63);
}

TEST(Lines, EndAtCrOrCrLfAndAtLfOnlyWithoutAnyCr) {
  EXPECT_EQ(SplitLines(u"a\r\nb\rc\nd\r\n"), (std::vector<Text>{u"a", u"b", u"c\nd"}));
  EXPECT_EQ(SplitLines(u"a\nb\n\nc"), (std::vector<Text>{u"a", u"b", u"", u"c"}));
  EXPECT_TRUE(SplitLines(u"").empty());
}

TEST(Files, WritingReplacesTheOldFileAndAFailureSaysSo) {
  const ScratchFolder scratch;
  EXPECT_FALSE(WriteBytes("a.dat", "un texte assez long").Failed());
  EXPECT_FALSE(WriteBytes("a.dat", "court").Failed());
  EXPECT_EQ(ReadBytes("a.dat"), "court");
  EXPECT_TRUE(WriteBytes("absent/a.dat", "x").Failed());
  EXPECT_TRUE(ReadBytes("absent").Failed());
  EXPECT_TRUE(ReadBytes(".").Failed()) << "a folder is no file";
  std::filesystem::resize_file("a.dat", LargestFile + 1);
  EXPECT_EQ(ReadBytes("a.dat").Why().Code(), std::errc::file_too_large);
}

TEST(Files, APipeOfThatNameIsNoFileAndHoldsNobodyUp) {
  const ScratchFolder scratch;
  ASSERT_EQ(::mkfifo("tube", 0600), 0);
  auto reading = std::async(std::launch::async, [] { return ReadBytes("tube"); });
  const auto end = reading.wait_for(std::chrono::seconds(5));
  ::close(::open("tube", O_RDWR | O_NONBLOCK));  // lets go of one who waits for the other end
  EXPECT_EQ(end, std::future_status::ready);
  EXPECT_TRUE(reading.get().Failed());
}

}  // namespace
}  // namespace talvor
