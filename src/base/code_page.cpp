#include "base/code_page.h"

#include <array>
#include <cstdint>

namespace talvor {
namespace {

// Bytes 80 to 9F; the others stand for the character of their own value.
constexpr std::array<char16_t, 32> HighControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t Character(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? HighControls[byte - 0x80u] : char16_t{byte};
}

// The code point at `i`, a pair of surrogates taken as one; `i` moves to its last unit.
char32_t CodePointAt(TextView text, std::size_t& i) {
  const char32_t c = text[i];
  if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF)
    return 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00u);
  return c;
}

struct Reference {
  char32_t character;
  std::size_t length;  // in bytes, from "&" to ";"
};

// The reference that begins at `at`, if it names a character outside the page.
std::optional<Reference> ReferenceAt(std::string_view bytes, std::size_t at) {
  constexpr std::size_t MostDigits = 7;
  if (bytes.substr(at, 2) != "&#") return std::nullopt;
  std::size_t end = at + 2;
  char32_t value = 0;
  while (end < bytes.size() && end < at + 2 + MostDigits && bytes[end] >= '0' && bytes[end] <= '9')
    value = value * 10 + static_cast<char32_t>(bytes[end++] - '0');
  const bool closed = end > at + 2 && end < bytes.size() && bytes[end] == ';' && bytes[at + 2] != '0';
  if (!closed || value > 0x10FFFF) return std::nullopt;
  if (value < 0x10000 && CodePageByte(static_cast<char16_t>(value))) return std::nullopt;
  return Reference{value, end + 1 - at};
}

}  // namespace

std::optional<unsigned char> CodePageByte(char16_t c) noexcept {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<unsigned char>(c);
  for (std::size_t i = 0; i < HighControls.size(); ++i)
    if (HighControls[i] == c) return static_cast<unsigned char>(0x80 + i);
  return std::nullopt;
}

int CharacterCode(char16_t c) noexcept { return CodePageByte(c).value_or('?'); }

std::string ToCodePage(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    // Most of a text is plain: whole runs of it are taken at once.
    const std::size_t run = i;
    while (i < text.size() && text[i] < 0x80) ++i;
    bytes.append(text.begin() + static_cast<std::ptrdiff_t>(run),
                 text.begin() + static_cast<std::ptrdiff_t>(i));
    if (i == text.size()) break;
    if (const auto byte = CodePageByte(text[i]))
      bytes += static_cast<char>(*byte);
    else
      bytes += "&#" + std::to_string(static_cast<std::uint32_t>(CodePointAt(text, i))) + ";";
  }
  return bytes;
}

Text FromCodePage(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto reference = bytes[i] == '&' ? ReferenceAt(bytes, i) : std::nullopt;
    if (!reference) {
      text += Character(static_cast<unsigned char>(bytes[i]));
      continue;
    }
    char32_t c = reference->character;
    if (c >= 0x10000) {
      c -= 0x10000;
      text += static_cast<char16_t>(0xD800 + (c >> 10));
      c = 0xDC00 + (c & 0x3FF);
    }
    text += static_cast<char16_t>(c);
    i += reference->length - 1;
  }
  return text;
}

}  // namespace talvor
