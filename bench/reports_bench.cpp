// What the file of a report costs over 10,000 candidatures beside reading their rows.

#include <SQLiteCpp/SQLiteCpp.h>
#include <benchmark/benchmark.h>

#include "base/code_page.h"
#include "base/line_file.h"
#include "reports/printed_reports.h"
#include "tests/fakes/fakes.h"
#include "tests/fakes/scratch_folder.h"
#include "tracking/sqlite_engine.h"

namespace talvor {
namespace {

constexpr int Rows = 10000;
const FakeClock Today{{2026, 3, 1}};

// A data folder with the rows for the life of the object.
class FilledFolder {
 public:
  FilledFolder() {
    Database::Create("Talvor.mdb");
    SQLite::Database base("Talvor.mdb", SQLite::OPEN_READWRITE);
    RegisterCollation(base);
    SQLite::Transaction transaction(base);
    for (int i = 0; i < Rows; ++i)
      base.exec(
          "insert into Candidatures (Intitule, Societe, Origine, Statut, Datediffussion, DateRDV, Remarques, "
          "Description) values ('Comptable', 'Société du Port', 'apec', 'NON EMISE', 46000, 46010, 'Appeler "
          "avant "
          "envoi.', hex(zeroblob(700)))");
    transaction.commit();
  }

 private:
  ScratchFolder folder_;
};

void ReadRows(benchmark::State& state) {
  const FilledFolder folder;
  for (auto _ : state) {
    Database base = Database::Open(Today);
    std::size_t characters = 0;
    base.WalkRows(RowOrder::Unsorted, [&](const RowView& row) {
      for (std::size_t c = 0; c < CandidatureFields.size(); ++c) characters += row.Value(Column{c}).size();
    });
    benchmark::DoNotOptimize(characters);
  }
}

template <ReportMode Mode>
void WriteFile(benchmark::State& state) {
  const FilledFolder folder;
  for (auto _ : state) {
    Database base = Database::Open(Today);
    const auto written = WritePieces("rapport.html", [&](const PieceSink& write) {
      WriteReport(base, Mode, {}, Today.Today(), [&](TextView piece) { write(ToCodePage(piece)); });
    });
    if (written.Failed()) state.SkipWithError("the report could not be written");
  }
}

BENCHMARK(ReadRows)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteFile<ReportMode::Liste>)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteFile<ReportMode::Justificatif>)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace talvor
