#include "base/day.h"

#include <array>
#include <chrono>
#include <utility>

#include "base/fonctionnel.h"

namespace talvor {
namespace {

using namespace std::chrono;

constexpr sys_days Origin{year{1899} / December / 30};

struct MonthWord {
  TextView word;  // as SansAccents gives it
  int month;
};

constexpr std::array<MonthWord, 25> MonthWords{{
    {u"JANVIER", 1}, {u"JANV", 1},      {u"JAN", 1},     {u"FEVRIER", 2},   {u"FEVR", 2},
    {u"FEV", 2},     {u"MARS", 3},      {u"MAR", 3},     {u"AVRIL", 4},     {u"AVR", 4},
    {u"MAI", 5},     {u"JUIN", 6},      {u"JUILLET", 7}, {u"JUIL", 7},      {u"AOUT", 8},
    {u"AOU", 8},     {u"SEPTEMBRE", 9}, {u"SEPT", 9},    {u"SEP", 9},       {u"OCTOBRE", 10},
    {u"OCT", 10},    {u"NOVEMBRE", 11}, {u"NOV", 11},    {u"DECEMBRE", 12}, {u"DEC", 12},
}};

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// A walk over the text that takes one piece at a time.
class Scanner {
 public:
  explicit Scanner(TextView rest) : rest_(rest) {}

  // A number of `least` to `most` digits, with its count of digits.
  std::optional<std::pair<int, std::size_t>> Number(std::size_t least, std::size_t most) {
    std::size_t count = 0;
    int value = 0;
    while (count < rest_.size() && IsDigit(rest_[count])) {
      if (count == most) return std::nullopt;
      value = value * 10 + (rest_[count++] - u'0');
    }
    if (count < least) return std::nullopt;
    rest_.remove_prefix(count);
    return std::pair{value, count};
  }

  // "/", "-", "." or blanks; true if there was one.
  bool Separator() {
    if (rest_.empty()) return false;
    if (rest_.front() == u'/' || rest_.front() == u'-' || rest_.front() == u'.') {
      rest_.remove_prefix(1);
      return true;
    }
    return Blanks();
  }

  bool Blanks() {
    const std::size_t before = rest_.size();
    while (!rest_.empty() && rest_.front() == u' ') rest_.remove_prefix(1);
    return rest_.size() < before;
  }

  bool Skip(TextView word) {
    if (!rest_.starts_with(word)) return false;
    rest_.remove_prefix(word.size());
    return true;
  }

  TextView Word() {
    std::size_t length = 0;
    while (length < rest_.size() && rest_[length] != u' ' && rest_[length] != u'.' &&
           !IsDigit(rest_[length]) && rest_[length] != u'/' && rest_[length] != u'-')
      ++length;
    const TextView word = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return word;
  }

  bool AtEnd() const { return rest_.empty(); }

 private:
  TextView rest_;
};

std::optional<int> MonthOf(TextView word) {
  for (const auto& row : MonthWords)
    if (row.word == word) return row.month;
  return std::nullopt;
}

std::optional<int> Year(Scanner& scanner) {
  constexpr int FirstYearOfLastCentury = 30;
  const auto number = scanner.Number(2, 4);
  if (!number || number->second == 3) return std::nullopt;
  if (number->second == 4) return number->first;
  return number->first + (number->first < FirstYearOfLastCentury ? 2000 : 1900);
}

}  // namespace

std::optional<Day> DayOf(CivilDate date) {
  if (date.year < 1 || date.year > 9999 || date.month < 1 || date.day < 1) return std::nullopt;
  const year_month_day civil{year{date.year}, month{static_cast<unsigned>(date.month)},
                             day{static_cast<unsigned>(date.day)}};
  if (!civil.ok()) return std::nullopt;
  return Day{static_cast<std::int32_t>((sys_days{civil} - Origin).count())};
}

CivilDate CivilDateOf(Day day) {
  const year_month_day civil{Origin + days{day.serial}};
  return {int{civil.year()}, static_cast<int>(unsigned{civil.month()}),
          static_cast<int>(unsigned{civil.day()})};
}

Text DateText(Day day) {
  const CivilDate civil = CivilDateOf(day);
  const auto padded = [](int number, std::size_t width) {
    const Text digits = NumberText(number);
    return Text(width > digits.size() ? width - digits.size() : 0, u'0') + digits;
  };
  return padded(civil.day, 2) + u"/" + padded(civil.month, 2) + u"/" + padded(civil.year, 4);
}

std::optional<Day> ParseDate(TextView text) {
  const Text folded = SansAccents(TrimBlanks(text));
  Scanner scanner{folded};
  const auto day = scanner.Number(1, 2);
  if (!day) return std::nullopt;
  const bool ordinal = day->first == 1 && scanner.Skip(u"ER");
  if (!scanner.Separator()) return std::nullopt;
  scanner.Blanks();

  std::optional<int> month;
  if (const auto number = ordinal ? std::nullopt : scanner.Number(1, 2)) {
    month = number->first;
    if (!scanner.Separator()) return std::nullopt;
  } else {
    month = MonthOf(scanner.Word());
    const bool abbreviated = scanner.Skip(u".");
    if (!scanner.Separator() && !abbreviated) return std::nullopt;
  }
  scanner.Blanks();

  const auto year = Year(scanner);
  if (!month || !year || !scanner.AtEnd()) return std::nullopt;
  return DayOf({*year, *month, day->first});
}

bool DateValide(TextView text) { return text.empty() || ParseDate(text).has_value(); }

}  // namespace talvor
