// The prepared sentences, from which the body of a letter is chosen.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <span>

#include "letters/letter_model.h"

namespace talvor {

// propositions.txt in the data folder.
[[nodiscard]] std::filesystem::path PropositionsFile();

// The table of propositions, positions 0 to 30. A line holds its group (1 to 5) in front, a separator
// at its second character, and the sentence from the third one on. The lines of a group are to stand
// together: going back and forth moves to the neighbouring line only.
//
// Groups are given here as the 0-based index of their sentence in `Corps`.
class Propositions {
 public:
  static constexpr std::size_t Positions = 31;

  // Takes the first 31 lines; what they do not fill is empty.
  void Take(std::span<const Text> lines);
  // Takes the lines of PropositionsFile(), in UTF-8 or, when its bytes are none, in the code page; without
  // the file the table is empty.
  void Load();

  // Puts the first sentence of each group, of those at positions 0 to 29, where `Corps` is empty.
  void FillEmpty(std::array<Text, CorpsCount>& corps) const;

  // The sentence before that of `corps`, or `corps` itself where there is none: it does not wrap. For
  // an empty text the last sentence of the group at positions 0 to 29.
  [[nodiscard]] Text Previous(std::size_t group, TextView corps) const;

  // The sentence behind that of `corps`; behind the last one, and for a text that is no sentence of the
  // table, the first one at positions 2 to 30. A group without a line there leaves `corps` as it is.
  [[nodiscard]] Text Next(std::size_t group, TextView corps) const;

 private:
  [[nodiscard]] TextView Sentence(std::size_t position) const;
  [[nodiscard]] bool InGroup(std::size_t position, std::size_t group) const;
  [[nodiscard]] bool Same(TextView corps, std::size_t position) const;
  [[nodiscard]] std::optional<std::size_t> PositionAfter(std::size_t group, TextView corps,
                                                         std::size_t from) const;

  std::array<Text, Positions> lines_;
};

}  // namespace talvor
