#pragma once

#include "base/text.h"

namespace talvor {

class Environment {
 public:
  virtual ~Environment() = default;
  // The value of a variable, empty when it is not set. `temp`, and in a user's session `AppData`
  // and `userprofile`, answer with the folder that stands for them on this system.
  [[nodiscard]] virtual Text Variable(TextView name) const = 0;
};

}  // namespace talvor
