// The sample advertisements, each with the fields that were worked out by hand from the rules.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "ads/analyser.h"
#include "base/line_file.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

// The record as lines «Field: value», the description by its first and last line.
std::string Printed(const AdFields& record) {
  std::string lines;
  for (const auto& field : AdFieldTable) {
    const Text& value = record.*(field.text);
    if (field.name != u"Description") {
      lines += ToUtf8(field.name) + ": «" + ToUtf8(value) + "»\n";
      continue;
    }
    const auto pieces = SplitLines(value);
    const Text ends = pieces.empty() ? Text{} : pieces.front() + u" … " + pieces.back();
    lines += "Description: «" + ToUtf8(ends) + "» " + std::to_string(pieces.size()) + " lignes\n";
  }
  return lines;
}

class Samples : public testing::TestWithParam<std::string> {};

TEST_P(Samples, GiveTheirFields) {
  const fs::path sample = fs::path{TALVOR_TEST_DATA} / "annonces" / GetParam();
  Text texte = WithCrLf(*FromUtf8(*ReadBytes(sample)));
  AdFields record;
  AnalyserAnnonce(texte, record, {.today = *DayOf({2026, 11, 22})});
  const std::string printed = Printed(record);
  const std::string expected = ReadBytes(fs::path{sample}.replace_extension(".attendu")).value_or("");
  if (printed != expected)
    std::ofstream{fs::path{sample}.replace_extension(".actual"), std::ios::binary} << printed;
  EXPECT_EQ(printed, expected);
}

std::vector<std::string> SampleNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator{fs::path{TALVOR_TEST_DATA} / "annonces"})
    if (entry.path().extension() == ".txt") names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

INSTANTIATE_TEST_SUITE_P(Annonces, Samples, testing::ValuesIn(SampleNames()));

}  // namespace
}  // namespace talvor
