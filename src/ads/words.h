// `Mots`, the words of the normal form of an advertisement.
#pragma once

#include <cstddef>
#include <exception>
#include <vector>

#include "base/text.h"

namespace talvor::ads {

using Index = std::ptrdiff_t;

// Ends a run of the analyser. Raised by the checked accessors, caught once in AnalyserAnnonce.
class AnalysisFailure : public std::exception {};

// The word that stands for a line end; no other full stop survives in the normal form.
inline constexpr TextView LineMark = u".";

class Words {
 public:
  // Splits `" " & texte` at single blanks: word 0 is always empty, the first word has index 1. The text
  // must outlive the words.
  explicit Words(TextView texte);

  // The highest index.
  [[nodiscard]] Index U() const noexcept { return static_cast<Index>(words_.size()) - 1; }

  // The word at an index as it now stands; an index outside 0 to U is a failure.
  [[nodiscard]] TextView operator()(Index index) const {
    if (index < 0 || index > U()) throw AnalysisFailure{};
    return words_[static_cast<std::size_t>(index)];
  }

  // The word at an index from 1 to U as it stood before any cut.
  [[nodiscard]] TextView Uncut(Index index) const;

  // Cuts the word at a slash behind its fifth character when it has more than 12 («INFORMATICIEN/NE»);
  // the slash of a date stands further in front.
  void CutAtSlash(Index index);

  // The index of the last line mark, 0 when there is none.
  [[nodiscard]] Index LastLineMark() const noexcept { return lastLineMark_; }

 private:
  TextView texte_;
  std::vector<TextView> words_;
  Index lastLineMark_ = 0;
};

}  // namespace talvor::ads
