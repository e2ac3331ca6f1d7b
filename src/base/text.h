// base: texts, the user's code page, text rules, days, line files and field tables.
//
// A text is a sequence of UTF-16 units and one unit is one character position, so that rules told in
// positions and lengths are plain indexing. Positions in this header are 0-based.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace talvor {

using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr TextView LineEnd = u"\r\n";

// The text of UTF-8 bytes; nothing when they are not valid UTF-8. A leading byte order mark is kept.
[[nodiscard]] std::optional<Text> FromUtf8(std::string_view bytes);

// The UTF-8 bytes of a text; half a surrogate pair becomes U+FFFD.
[[nodiscard]] std::string ToUtf8(TextView text);

// Case mapping, one character to one character: a length never changes («ß» stays). Letters outside
// the Latin, Greek and Cyrillic alphabets stay as they are, and none maps into or out of ASCII but
// the ASCII letters themselves.
[[nodiscard]] char16_t ToUpper(char16_t c) noexcept;
[[nodiscard]] char16_t ToLower(char16_t c) noexcept;
[[nodiscard]] Text UpperCase(TextView text);
[[nodiscard]] Text LowerCase(TextView text);

// Less than, equal to or greater than 0 as `a` sorts before, with or after `b` without regard to case.
[[nodiscard]] int CompareIgnoringCase(TextView a, TextView b) noexcept;
[[nodiscard]] bool EndsWithIgnoringCase(TextView text, TextView ending) noexcept;

// The first position of `what` at or after `from`, or TextView::npos. Made for long texts.
[[nodiscard]] std::size_t Find(TextView text, TextView what, std::size_t from = 0) noexcept;
[[nodiscard]] bool Contains(TextView text, TextView what) noexcept;
[[nodiscard]] bool ContainsAny(TextView text, std::span<const TextView> terms) noexcept;

// Every occurrence of `what` (not empty) replaced once, from left to right; what was put in is not
// looked at again.
[[nodiscard]] Text ReplaceAll(TextView text, TextView what, TextView by);

// The pieces between the separators (not empty), in order, empty ones included; an empty text gives
// one empty piece. The views look into `text`.
[[nodiscard]] std::vector<TextView> Split(TextView text, TextView separator);

// Without the blanks (character 32 alone) at both ends.
[[nodiscard]] TextView TrimBlanks(TextView text) noexcept;

// Every line end, LF or CR LF, as CR LF. A lone CR stays.
[[nodiscard]] Text WithCrLf(TextView text);

// A whole number in decimal digits, with "-" in front when negative.
[[nodiscard]] Text NumberText(long long number);

// A text between French quotation marks, with their non-breaking blanks; bytes are UTF-8.
[[nodiscard]] Text Quoted(TextView text);
[[nodiscard]] std::string Quoted(std::string_view bytes);

}  // namespace talvor
