#pragma once

#include <optional>
#include <string>

#include "base/text.h"

namespace talvor {

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // The picture on the clipboard as the bytes of a picture file, nothing when there is none.
  [[nodiscard]] virtual std::optional<std::string> Image() = 0;
  // The text on the clipboard with line ends CR LF, empty when it holds none.
  [[nodiscard]] virtual Text ReadText() const = 0;
  virtual void Clear() = 0;
};

}  // namespace talvor
