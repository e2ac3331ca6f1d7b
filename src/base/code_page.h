// Code page 1252, the character set of the workspace's files.
//
// The five bytes that the page leaves undefined (81, 8D, 8F, 90, 9D) stand for the control characters
// of the same value, so that every byte becomes a character and that character the same byte again.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/text.h"

namespace talvor {

// The byte of a character, nothing for a character outside the page.
[[nodiscard]] std::optional<unsigned char> CodePageByte(char16_t c) noexcept;

// The character code as the platform's conversion gives it: 63, the question mark, outside the page.
[[nodiscard]] int CharacterCode(char16_t c) noexcept;

// A character outside the page is written as a decimal reference («&#128515;») and read back as that
// character. A reference to a character that the page holds is plain text in both directions.
[[nodiscard]] std::string ToCodePage(TextView text);
[[nodiscard]] Text FromCodePage(std::string_view bytes);

}  // namespace talvor
