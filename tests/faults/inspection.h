// The data folder looked at after a fault.
#pragma once

#include <string>
#include <vector>

#include "base/day.h"
#include "tests/faults/ledger.h"

namespace talvor::faults {

struct Findings {
  std::vector<std::string> faults;      // empty: nothing was lost
  std::vector<std::string> fromCopies;  // documents whose last whole version stands among the kept ones
};

// Compares the data folder, which is the current directory, with the ledger, and enters into the ledger
// what it finds of saves that were under way.
[[nodiscard]] Findings Inspect(Ledger& ledger, Day today);

}  // namespace talvor::faults
