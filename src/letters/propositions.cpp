#include "letters/propositions.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/fonctionnel.h"
#include "base/line_file.h"

namespace talvor {
namespace {

// Only so many characters are compared, because `Corps` holds a sentence behind its gender tokens. A
// token among them keeps its sentence from being recognised.
constexpr std::size_t Compared = 10;

}  // namespace

std::filesystem::path PropositionsFile() { return std::filesystem::current_path() / "propositions.txt"; }

void Propositions::Take(std::span<const Text> lines) {
  lines_.fill({});
  std::copy_n(lines.begin(), std::min(lines.size(), Positions), lines_.begin());
}

// The user opens the file in an editor of choice, and most of today's leave it in UTF-8.
void Propositions::Load() {
  const std::string bytes = ReadBytes(PropositionsFile()).value_or(std::string());
  constexpr std::string_view Mark = "\xEF\xBB\xBF";
  const std::string_view text = std::string_view{bytes}.substr(bytes.starts_with(Mark) ? Mark.size() : 0);
  const auto utf8 = FromUtf8(text);
  Take(SplitLines(utf8 ? *utf8 : FromCodePage(text)));
}

void Propositions::FillEmpty(std::array<Text, CorpsCount>& corps) const {
  for (std::size_t p = 0; p + 1 < Positions; ++p)
    for (std::size_t i = 0; i < corps.size(); ++i)
      if (InGroup(p, i) && corps[i].empty()) corps[i] = Sentence(p);
}

Text Propositions::Previous(std::size_t group, TextView corps) const {
  // From a known sentence one line back, if that line is of the group; the first one stays.
  if (!corps.empty())
    for (std::size_t p = 1; p < Positions; ++p)
      if (Same(corps, p) && InGroup(p - 1, group)) {
        corps = Sentence(p - 1);
        break;
      }

  // From nothing, an empty sentence just reached included, to the last line of the group.
  if (corps.empty())
    for (std::size_t p = Positions - 1; p-- > 0;)
      if (InGroup(p, group) && !lines_[p].empty()) return Text{Sentence(p)};

  return Text{corps};
}

Text Propositions::Next(std::size_t group, TextView corps) const {
  auto position = PositionAfter(group, corps, 0);
  // The wrap begins as from an empty sentence and passes over the first two positions.
  if (!position) position = PositionAfter(group, {}, 1);
  return Text{position ? Sentence(*position) : corps};
}

std::optional<std::size_t> Propositions::PositionAfter(std::size_t group, TextView corps,
                                                       std::size_t from) const {
  for (std::size_t p = from; p + 1 < Positions; ++p)
    if ((Same(corps, p) || corps.empty()) && InGroup(p + 1, group)) return p + 1;
  return std::nullopt;
}

TextView Propositions::Sentence(std::size_t position) const {
  constexpr std::size_t First = 2;
  const TextView line = lines_[position];
  return line.substr(std::min(First, line.size()));
}

bool Propositions::InGroup(std::size_t position, std::size_t group) const {
  return ValeurNumerique(lines_[position]) == static_cast<double>(group + 1);
}

bool Propositions::Same(TextView corps, std::size_t position) const {
  return Sentence(position).substr(0, Compared) == corps.substr(0, Compared);
}

}  // namespace talvor
