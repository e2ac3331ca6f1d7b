// What the list costs over 100,000 rows beside stepping the same query with the bare SQLite interface.

#include <SQLiteCpp/SQLiteCpp.h>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>

#include "tests/fakes/fakes.h"
#include "tests/fakes/scratch_folder.h"
#include "tracking/form_cand.h"
#include "tracking/sqlite_engine.h"
#include "tracking/status_lists.h"

namespace talvor {
namespace {

// A data folder with that many rows for the life of the object.
class FilledFolder {
 public:
  explicit FilledFolder(std::int64_t rows) {
    Database::Create("Talvor.mdb");
    SQLite::Database base("Talvor.mdb", SQLite::OPEN_READWRITE);
    RegisterCollation(base);
    SQLite::Transaction transaction(base);
    SQLite::Statement insert(
        base,
        "insert into Candidatures (Intitule, Description, Societe, Origine, Statut, Datediffussion) "
        "values ('Comptable fournisseurs', ?, ?, 'apec', ?, ?)");
    const std::string description(800, 'x');
    for (std::int64_t i = 0; i < rows; ++i) {
      insert.reset();
      insert.bind(1, description);
      insert.bind(2, "Société " + std::to_string(i * 7919 % 997));
      insert.bind(3, ToUtf8(ListeStatuts[static_cast<std::size_t>(i) % ListeStatuts.size()]));
      insert.bind(4, static_cast<std::int32_t>(46000 + i % 200));
      insert.exec();
    }
    transaction.commit();
  }

 private:
  ScratchFolder folder_;
};

void BareQuery(benchmark::State& state) {
  const FilledFolder folder(state.range(0));
  for (auto _ : state) {
    SQLite::Database base("Talvor.mdb", SQLite::OPEN_READWRITE);
    RegisterCollation(base);
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(base.getHandle(), "select * from Candidatures order by Statut desc", -1, &statement,
                       nullptr);
    std::int64_t rows = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) ++rows;
    sqlite3_finalize(statement);
    benchmark::DoNotOptimize(rows);
  }
}

void InitListe(benchmark::State& state) {
  const FilledFolder folder(state.range(0));
  const FakeClock clock{{2026, 3, 1}};
  FakeDialogs dialogs;
  FakeShell shell;
  FakeBrowser browser;
  Principale principale{shell};
  FormCand form{principale, clock, dialogs, shell, browser};
  for (auto _ : state) form.InitListe();
}

BENCHMARK(BareQuery)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(InitListe)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace talvor
