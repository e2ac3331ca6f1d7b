#pragma once

#include "base/text.h"

namespace talvor {

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // Shows a message and waits until the user has seen it.
  virtual void Tell(TextView message) = 0;
  // Asks with OK and Cancel; true only for OK.
  [[nodiscard]] virtual bool Confirm(TextView question) = 0;
};

}  // namespace talvor
