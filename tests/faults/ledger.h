// What a working program says of its saves, and what must therefore be found after it was killed.
#pragma once

#include <cstdint>
#include <map>

#include "base/text.h"

namespace talvor::faults {

enum class Kind : std::int32_t { Row, Cv, Letter };

// One word of the working program: a save of version `version` begins, or has been committed.
struct Word {
  Kind kind = Kind::Row;
  std::int32_t id = 0;  // the number of a row, the index of a document
  std::int32_t version = 0;
  std::int32_t committed = 0;
};

struct Versions {
  std::int32_t committed = 0;  // 0: none yet
  std::int32_t begun = 0;
  [[nodiscard]] bool Allow(std::int32_t found) const { return found == committed || found == begun; }
};

// Every object by its id.
struct Ledger {
  std::map<std::int32_t, Versions> rows, cvs, letters;

  void Take(const Word& word);
};

// The long text of a version. It opens and ends with its number, so that half of it is known as such.
[[nodiscard]] Text Body(std::int32_t version);
// The version of a whole body; 0 for anything else.
[[nodiscard]] std::int32_t VersionOf(TextView body);

[[nodiscard]] Text CvName(std::int32_t id);
[[nodiscard]] Text LetterName(std::int32_t id);

}  // namespace talvor::faults
