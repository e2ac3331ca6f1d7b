#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace talvor {
namespace {

constexpr char32_t Replacement = 0xFFFD;

constexpr bool IsHighSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
constexpr bool IsLowSurrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

void AppendCodePoint(Text& text, char32_t c) {
  if (c < 0x10000) {
    text += static_cast<char16_t>(c);
  } else {
    c -= 0x10000;
    text += static_cast<char16_t>(0xD800 + (c >> 10));
    text += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
  }
}

void AppendUtf8(std::string& bytes, char32_t c) {
  const auto trail = [&](int shift) { bytes += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) {
    bytes += static_cast<char>(c);
  } else if (c < 0x800) {
    bytes += static_cast<char>(0xC0 | (c >> 6));
    trail(0);
  } else if (c < 0x10000) {
    bytes += static_cast<char>(0xE0 | (c >> 12));
    trail(6);
    trail(0);
  } else {
    bytes += static_cast<char>(0xF0 | (c >> 18));
    trail(12);
    trail(6);
    trail(0);
  }
}

// A run of letters in pairs of a capital and a small letter.
struct CaseRange {
  char16_t first;  // the first capital
  char16_t last;   // the last capital
  int distance;    // from a capital to its small letter
  int step;        // from one capital to the next
};

// The letter pairs of the Unicode character database for the scripts named in the header.
constexpr std::array<CaseRange, 23> CaseRanges{{
    {u'A', u'Z', 32, 1},     {0x00C0, 0x00D6, 32, 1},
    {0x00D8, 0x00DE, 32, 1}, {0x0100, 0x012E, 1, 2},
    {0x0132, 0x0136, 1, 2},  {0x0139, 0x0147, 1, 2},
    {0x014A, 0x0176, 1, 2},  {0x0178, 0x0178, 0x00FF - 0x0178, 1},
    {0x0179, 0x017D, 1, 2},  {0x01CD, 0x01DB, 1, 2},
    {0x01F8, 0x021E, 1, 2},  {0x0222, 0x0232, 1, 2},
    {0x0386, 0x0386, 38, 1}, {0x0388, 0x038A, 37, 1},
    {0x038C, 0x038C, 64, 1}, {0x038E, 0x038F, 63, 1},
    {0x0391, 0x03A1, 32, 1}, {0x03A3, 0x03AB, 32, 1},
    {0x0400, 0x040F, 80, 1}, {0x0410, 0x042F, 32, 1},
    {0x0460, 0x0480, 1, 2},  {0x1E00, 0x1E94, 1, 2},
    {0x1EA0, 0x1EFE, 1, 2},
}};

constexpr std::size_t CaseTableSize = 0x2000;
using CaseTable = std::array<char16_t, CaseTableSize>;

enum class Direction { Up, Down };

constexpr CaseTable MakeCaseTable(Direction direction) {
  CaseTable table{};
  for (std::size_t c = 0; c < CaseTableSize; ++c) table[c] = static_cast<char16_t>(c);
  for (const auto& range : CaseRanges) {
    for (int capital = range.first; capital <= range.last; capital += range.step) {
      const int small = capital + range.distance;
      const auto [from, to] =
          direction == Direction::Up ? std::pair{small, capital} : std::pair{capital, small};
      table[static_cast<std::size_t>(from)] = static_cast<char16_t>(to);
    }
  }
  return table;
}

constexpr CaseTable UpperTable = MakeCaseTable(Direction::Up);
constexpr CaseTable LowerTable = MakeCaseTable(Direction::Down);

template <class Map>
Text Mapped(TextView text, Map map) {
  Text result(text.size(), u'\0');
  std::transform(text.begin(), text.end(), result.begin(), map);
  return result;
}

constexpr std::size_t SearchBlock = 64;

// True if the block at `data` may hold a text that begins with `first` and whose character `distance`
// further on is `last`. Without branches, so that the compiler turns it into vector instructions.
bool MayHold(const char16_t* data, char16_t first, char16_t last, std::size_t distance) noexcept {
  std::uint16_t found = 0;
  for (std::size_t i = 0; i < SearchBlock; ++i)
    found = static_cast<std::uint16_t>(found | ((data[i] == first) & (data[i + distance] == last)));
  return found != 0;
}

}  // namespace

std::optional<Text> FromUtf8(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  for (std::size_t i = 0; i < bytes.size();) {
    const auto lead = static_cast<unsigned char>(bytes[i]);
    if (lead < 0x80) {
      text += static_cast<char16_t>(lead);
      ++i;
      continue;
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || i + length > bytes.size()) return std::nullopt;
    char32_t c = lead & (0x7Fu >> length);
    for (std::size_t k = 1; k < length; ++k) {
      const auto trail = static_cast<unsigned char>(bytes[i + k]);
      if ((trail & 0xC0) != 0x80) return std::nullopt;
      c = (c << 6) | (trail & 0x3Fu);
    }
    constexpr std::array<char32_t, 5> Least{0, 0, 0x80, 0x800, 0x10000};
    if (c < Least[length] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return std::nullopt;
    AppendCodePoint(text, c);
    i += length;
  }
  return text;
}

std::string ToUtf8(TextView text) {
  std::string bytes;
  bytes.reserve(text.size() + text.size() / 8);
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (IsHighSurrogate(c) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00u);
    } else if (IsHighSurrogate(c) || IsLowSurrogate(c)) {
      c = Replacement;
    }
    AppendUtf8(bytes, c);
  }
  return bytes;
}

char16_t ToUpper(char16_t c) noexcept { return c < CaseTableSize ? UpperTable[c] : c; }
char16_t ToLower(char16_t c) noexcept { return c < CaseTableSize ? LowerTable[c] : c; }
Text UpperCase(TextView text) { return Mapped(text, ToUpper); }
Text LowerCase(TextView text) { return Mapped(text, ToLower); }

int CompareIgnoringCase(TextView a, TextView b) noexcept {
  const std::size_t common = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < common; ++i) {
    const int difference = int{ToUpper(a[i])} - int{ToUpper(b[i])};
    if (difference != 0) return difference;
  }
  return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

bool EndsWithIgnoringCase(TextView text, TextView ending) noexcept {
  return text.size() >= ending.size() &&
         CompareIgnoringCase(text.substr(text.size() - ending.size()), ending) == 0;
}

std::size_t Find(TextView text, TextView what, std::size_t from) noexcept {
  if (what.empty()) return from <= text.size() ? from : TextView::npos;
  if (text.size() < what.size()) return TextView::npos;
  const std::size_t distance = what.size() - 1;
  const std::size_t end = text.size() - distance;  // behind the last place where it can begin
  while (from < end) {
    if (from + SearchBlock <= end && !MayHold(text.data() + from, what.front(), what.back(), distance)) {
      from += SearchBlock;
      continue;
    }
    for (const std::size_t stop = std::min(end, from + SearchBlock); from < stop; ++from)
      if (text[from] == what.front() && text.compare(from, what.size(), what) == 0) return from;
  }
  return TextView::npos;
}

bool Contains(TextView text, TextView what) noexcept { return Find(text, what) != TextView::npos; }

bool ContainsAny(TextView text, std::span<const TextView> terms) noexcept {
  return std::any_of(terms.begin(), terms.end(), [&](TextView term) { return Contains(text, term); });
}

Text ReplaceAll(TextView text, TextView what, TextView by) {
  Text result;
  result.reserve(text.size());
  std::size_t from = 0;
  for (std::size_t at = Find(text, what); at != TextView::npos; at = Find(text, what, from)) {
    result.append(text, from, at - from).append(by);
    from = at + what.size();
  }
  return result.append(text.substr(from));
}

std::vector<TextView> Split(TextView text, TextView separator) {
  std::vector<TextView> pieces;
  std::size_t from = 0;
  for (std::size_t at = Find(text, separator); at != TextView::npos; at = Find(text, separator, from)) {
    pieces.push_back(text.substr(from, at - from));
    from = at + separator.size();
  }
  pieces.push_back(text.substr(from));
  return pieces;
}

TextView TrimBlanks(TextView text) noexcept {
  const auto first = text.find_first_not_of(u' ');
  if (first == TextView::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

Text WithCrLf(TextView text) {
  Text result;
  result.reserve(text.size() + text.size() / 32);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == u'\n' && (i == 0 || text[i - 1] != u'\r')) result += u'\r';
    result += text[i];
  }
  return result;
}

Text NumberText(long long number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

Text Quoted(TextView text) { return Text{u"«\u00A0"}.append(text).append(u"\u00A0»"); }
std::string Quoted(std::string_view bytes) { return std::string{"«\u00A0"}.append(bytes).append("\u00A0»"); }

}  // namespace talvor
