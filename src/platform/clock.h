// platform: what the core asks of its surroundings, as small interfaces; no implementation stands here.
#pragma once

#include "base/day.h"

namespace talvor {

class Clock {
 public:
  virtual ~Clock() = default;
  // Today's date where the user is.
  [[nodiscard]] virtual Day Today() const = 0;
};

}  // namespace talvor
