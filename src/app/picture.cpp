#include "app/picture.h"

namespace talvor {
namespace {

using namespace std::string_view_literals;

std::uint32_t Byte(std::string_view bytes, std::size_t at) { return static_cast<unsigned char>(bytes[at]); }
std::uint32_t Big16(std::string_view bytes, std::size_t at) {
  return Byte(bytes, at) << 8 | Byte(bytes, at + 1);
}
std::uint32_t Big32(std::string_view bytes, std::size_t at) {
  return Big16(bytes, at) << 16 | Big16(bytes, at + 2);
}
std::uint32_t Little16(std::string_view bytes, std::size_t at) {
  return Byte(bytes, at) | Byte(bytes, at + 1) << 8;
}

std::optional<PictureKind> Sized(std::string_view mimeType, std::uint32_t width, std::uint32_t height) {
  if (width == 0 || height == 0) return std::nullopt;
  return PictureKind{mimeType, width, height};
}

// The size stands in a frame header, whose place is found by going from one segment to the next.
std::optional<PictureKind> JpegKind(std::string_view bytes) {
  std::size_t at = 2;
  while (at + 9 <= bytes.size() && Byte(bytes, at) == 0xFF) {
    const std::uint32_t marker = Byte(bytes, at + 1);
    if (marker == 0xFF) {  // a filling byte
      ++at;
      continue;
    }
    const bool standsAlone = marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
    const bool isTable = marker == 0xC4 || marker == 0xC8 || marker == 0xCC;
    if (marker >= 0xC0 && marker <= 0xCF && !isTable)
      return Sized("image/jpeg", Big16(bytes, at + 7), Big16(bytes, at + 5));
    at += 2 + (standsAlone ? 0 : Big16(bytes, at + 2));
  }
  return std::nullopt;
}

}  // namespace

std::optional<PictureKind> PictureKindOf(std::string_view bytes) {
  constexpr std::size_t PngHeader = 24;
  constexpr std::size_t GifHeader = 10;
  if (bytes.starts_with("\x89PNG\r\n\x1A\n"sv) && bytes.size() >= PngHeader)
    return Sized("image/png", Big32(bytes, 16), Big32(bytes, 20));
  if ((bytes.starts_with("GIF87a"sv) || bytes.starts_with("GIF89a"sv)) && bytes.size() >= GifHeader)
    return Sized("image/gif", Little16(bytes, 6), Little16(bytes, 8));
  if (bytes.starts_with("\xFF\xD8"sv)) return JpegKind(bytes);
  return std::nullopt;
}

}  // namespace talvor
