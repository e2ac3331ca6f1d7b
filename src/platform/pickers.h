#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

#include "base/text.h"

namespace talvor {

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Colour&) const = default;
};

struct FileQuestion {
  Text title;
  std::filesystem::path folder;  // where the dialog starts
  Text filter;                   // «Label|*.a;*.b», further kinds behind further "|"
  Text name;                     // the proposed file name
};

// The dialogs in which the user picks something. Nothing when the user gives up.
class Pickers {
 public:
  virtual ~Pickers() = default;
  // The full path of an existing file; the current directory stays as it is.
  [[nodiscard]] virtual std::optional<std::filesystem::path> OpenFile(const FileQuestion& question) = 0;
  // The full path of a file to be written, which may exist; nothing is asked about that.
  [[nodiscard]] virtual std::optional<std::filesystem::path> SaveFile(const FileQuestion& question) = 0;
  [[nodiscard]] virtual std::optional<Colour> PickColour() = 0;
};

}  // namespace talvor
