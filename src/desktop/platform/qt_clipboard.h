#pragma once

#include <optional>
#include <string>

#include "platform/clipboard.h"

namespace talvor {

class QtClipboard : public Clipboard {
 public:
  // As PNG.
  std::optional<std::string> Image() override;
  Text ReadText() const override;
  void Clear() override;
};

}  // namespace talvor
