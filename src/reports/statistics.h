// `FormStat`, the state of the job search: counts by status, two calendars, interviews to come.
#pragma once

#include <array>
#include <optional>

#include "platform/clock.h"
#include "tracking/status_lists.h"
#include "tracking/store.h"

namespace talvor {

class FormStat {
 public:
  static constexpr std::size_t CellsOfAMonth = 42;  // six weeks, Monday first
  static constexpr int WidestGraph = 4000;

  struct DayCell {
    Text text;  // the day of the month, empty outside it
    bool today = false;
    bool interview = false;  // bold, black text
  };

  struct StatusRow {
    Text Statut;
    Text Nb;
    int Graph = 1;  // width of the bar, 1 to WidestGraph
  };

  explicit FormStat(const Clock& clock) : clock_(clock) {}

  // Cells 0 to 41 are the current month, 42 to 83 the next one.
  std::array<DayCell, 2 * CellsOfAMonth> Jour;
  Text MoisCal1, MoisCal2;
  Text DateJour;
  std::array<StatusRow, ListeStatutsComptes.size()> Statuts;
  Text RDV;  // an interview a line

  // Computes everything anew. Throws StoreError when the engine fails.
  void Charger();

  // The cell of a date, nothing for a date of neither month. The year is not compared: a date one year
  // away in the same month falls into this one.
  [[nodiscard]] std::optional<std::size_t> IndexJour(Day date) const;

 private:
  void FillCalendars();
  void CountStatuses(Database& database);
  void ListInterviews(Database& database);

  const Clock& clock_;
};

}  // namespace talvor
