#pragma once

#include <optional>
#include <string>

namespace talvor {

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // The picture on the clipboard as the bytes of a picture file, nothing when there is none.
  [[nodiscard]] virtual std::optional<std::string> Image() = 0;
};

}  // namespace talvor
