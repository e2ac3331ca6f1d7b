#include "reports/statistics.h"

#include <algorithm>
#include <chrono>
#include <cstdint>

#include "base/fonctionnel.h"

namespace talvor {
namespace {

// «NOV 2026 », with its blank at the end. The month is 1 to 12.
Text CalendarTitle(int month, int year) {
  return Text{MonthAbbreviations.substr(static_cast<std::size_t>(month - 1) * 4, 3)} + u" " +
         NumberText(year) + u" ";
}

// 1 for Sunday to 7 for Saturday.
int Weekday(Day day) {
  using namespace std::chrono;
  const sys_days date = sys_days{year{1899} / December / 30} + days{day.serial};
  return static_cast<int>(weekday{date}.c_encoding()) + 1;
}

}  // namespace

std::optional<std::size_t> FormStat::IndexJour(Day date) const {
  const CivilDate civil = CivilDateOf(date);
  const int first = Weekday(Day{date.serial - civil.day + 1});
  // The first of a month on a Monday takes cell 0, on a Sunday cell 6.
  const int index = first == 1 ? civil.day + first + 4 : civil.day + first - 3;
  const int months = civil.month - CivilDateOf(clock_.Today()).month;
  if (months == 0) return static_cast<std::size_t>(index);
  if (months == 1 || months == -11) return static_cast<std::size_t>(index) + CellsOfAMonth;
  return std::nullopt;
}

void FormStat::Charger() {
  Jour.fill({});
  RDV.clear();
  FillCalendars();
  Database database = Database::Open(clock_);
  CountStatuses(database);
  ListInterviews(database);
}

void FormStat::FillCalendars() {
  const Day today = clock_.Today();
  // The offsets cover both months whole; dates of no cell are passed over.
  for (int offset = -30; offset <= 62; ++offset) {
    const Day day{today.serial + offset};
    if (const auto cell = IndexJour(day)) Jour[*cell].text = NumberText(CivilDateOf(day).day);
  }
  if (const auto cell = IndexJour(today)) Jour[*cell].today = true;

  const CivilDate civil = CivilDateOf(today);
  MoisCal1 = CalendarTitle(civil.month, civil.year);
  MoisCal2 = CalendarTitle(civil.month % 12 + 1, CivilDateOf(Day{today.serial + 31}).year);
  DateJour = u"Nous sommes le " + DateText(today);
}

void FormStat::CountStatuses(Database& database) {
  constexpr std::int64_t WidthOfOne = 100;
  for (std::size_t i = 0; i < Statuts.size(); ++i) {
    const std::int64_t count = database.CountByStatus(ListeStatutsComptes[i]);
    const std::int64_t width = std::min<std::int64_t>(WidestGraph, 1 + WidthOfOne * count);
    Statuts[i] = {Text{ListeStatutsComptes[i]}, NumberText(count), static_cast<int>(width)};
  }
}

void FormStat::ListInterviews(Database& database) {
  const Day today = clock_.Today();
  database.WalkRows(RowOrder::Unsorted, [&](const RowView& row) {
    const Text date = row.Value(&Candidature::DateRDV);
    const auto interview = ParseDate(date);
    if (!interview || *interview < today) return;
    RDV += u"Entretien avec la société " + row.Value(&Candidature::Societe) + u" le " + date + Text{LineEnd};
    if (const auto cell = IndexJour(*interview)) Jour[*cell].interview = true;
  });
}

}  // namespace talvor
