// What the first bytes of a picture tell, whatever the name of its file.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace talvor {

struct PictureKind {
  std::string_view mimeType;
  std::uint32_t width = 0;   // in pixels, more than 0
  std::uint32_t height = 0;  // the same
};

// Of a PNG, GIF or JPEG picture; nothing for any other bytes, or when the size does not stand in them.
[[nodiscard]] std::optional<PictureKind> PictureKindOf(std::string_view bytes);

}  // namespace talvor
