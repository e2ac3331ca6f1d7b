#pragma once

#include <vector>

#include "base/text.h"

namespace talvor {

// What other programs of the user's machine do with documents, and the windows that they show.
class Documents {
 public:
  virtual ~Documents() = default;
  // Opens a file or a web address with the program of its kind. False when nothing could be started.
  [[nodiscard]] virtual bool Open(TextView target) = 0;
  // The program that opens files of that kind, empty when there is none.
  [[nodiscard]] virtual Text ProgramFor(TextView file) const = 0;
  // The titles of the top-level windows, those without a title left out; empty where they cannot be
  // listed.
  [[nodiscard]] virtual std::vector<Text> WindowTitles() const = 0;
};

}  // namespace talvor
