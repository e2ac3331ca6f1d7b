// Lines of any kind as prepared sentences: going back and forth shows a sentence of the table or leaves the
// text as it is, and a sentence that the user wrote is never replaced by the first fill.

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "base/code_page.h"
#include "base/line_file.h"
#include "letters/propositions.h"

namespace {

using namespace talvor;

bool Offered(const std::vector<Text>& lines, TextView sentence) {
  return std::any_of(lines.begin(), lines.end(), [sentence](TextView line) {
    return line.substr(std::min<std::size_t>(2, line.size())) == sentence;
  });
}

void CheckFill(const Propositions& table, const std::vector<Text>& lines, TextView written) {
  std::array<Text, CorpsCount> corps;
  corps[2] = written;
  table.FillEmpty(corps);
  if (!written.empty() && corps[2] != written) __builtin_trap();
  for (const Text& sentence : corps)
    if (!sentence.empty() && sentence != written && !Offered(lines, sentence)) __builtin_trap();
}

void CheckSteps(const Propositions& table, const std::vector<Text>& lines, TextView written) {
  for (std::size_t group = 0; group < CorpsCount; ++group)
    for (const auto step : {&Propositions::Next, &Propositions::Previous}) {
      Text corps{written};
      for (std::size_t i = 0; i <= Propositions::Positions; ++i) {
        const Text before = corps;
        corps = (table.*step)(group, before);
        if (corps != before && !Offered(lines, corps)) __builtin_trap();
      }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto lines = SplitLines(FromCodePage({reinterpret_cast<const char*>(data), size}));
  Propositions table;
  table.Take(lines);
  for (const TextView written : {TextView{}, lines.empty() ? TextView{} : TextView{lines.back()}}) {
    CheckFill(table, lines, written);
    CheckSteps(table, lines, written);
  }
  return 0;
}
