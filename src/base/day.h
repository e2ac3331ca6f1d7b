// Days and French dates.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>

#include "base/text.h"

namespace talvor {

// A calendar day as a count of days since 30 December 1899, the count that the database stores; adding
// 30 adds 30 days.
struct Day {
  std::int32_t serial = 0;
  auto operator<=>(const Day&) const = default;
};

struct CivilDate {
  int year = 0;   // 1 to 9999
  int month = 0;  // 1 to 12
  int day = 0;    // 1 to 31
};

// Nothing when there is no such day in the calendar, or the year is not between 1 and 9999.
[[nodiscard]] std::optional<Day> DayOf(CivilDate date);

[[nodiscard]] CivilDate CivilDateOf(Day day);

// dd/mm/yyyy.
[[nodiscard]] Text DateText(Day day);

// A French date, day first: day, month and year in digits parted by "/", "-", "." or a blank, or with
// the month in words («1er mars 2007», «12 févr. 2007», in any case, with or without accents). A year
// has four digits, or two: 00 to 29 are of this century, 30 to 99 of the last one. Blanks at both ends
// are passed over. Nothing for any other text.
[[nodiscard]] std::optional<Day> ParseDate(TextView text);

// True for the empty text and for a date that ParseDate reads.
[[nodiscard]] bool DateValide(TextView text);

}  // namespace talvor
