#include "tracking/store.h"

#include <SQLiteCpp/Backup.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

#include "tracking/ageing.h"
#include "tracking/sqlite_engine.h"
#include "workspace/workspace_paths.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

constexpr int SchemaVersion = 1;

// Text columns are never null: a save writes an empty text. Dates are days since 30 December 1899.
constexpr const char* Schema = R"sql(
  create table Candidatures (
    Num            integer primary key autoincrement,
    Intitule       text not null default '' collate SansCasse,
    Description    text not null default '' collate SansCasse,
    Nature         text not null default '' collate SansCasse,
    Lieu           text not null default '' collate SansCasse,
    Duree          text not null default '' collate SansCasse,
    Salaire        text not null default '' collate SansCasse,
    Societe        text not null default '' collate SansCasse,
    NomContact     text not null default '' collate SansCasse,
    Telephone      text not null default '' collate SansCasse,
    courriel       text not null default '' collate SansCasse,
    Origine        text not null default '' collate SansCasse,
    Datediffussion integer,
    DateLimite     integer,
    DateRDV        integer,
    DateEnvoi      integer,
    www            text not null default '' collate SansCasse,
    Reference      text not null default '' collate SansCasse,
    Statut         text not null default '' collate SansCasse,
    CV             text not null default '' collate SansCasse,
    Lettre         text not null default '' collate SansCasse,
    Remarques      text not null default '' collate SansCasse,
    Adresse        text not null default '' collate SansCasse,
    CP             text not null default '' collate SansCasse,
    Ville          text not null default '' collate SansCasse
  );
  insert into sqlite_sequence (name, seq) values ('Candidatures', 0);
)sql";

constexpr const char* AllRows = "select * from Candidatures";
constexpr const char* OneRow = "select * from Candidatures where num = ";
constexpr const char* DeleteOneRow = "delete from candidatures where num = ";
constexpr const char* DeleteEveryRow = "delete from candidatures ";
constexpr const char* CountStatus = "select count(*) as toto from Candidatures where statut = ?";

const char* QueryOf(RowOrder order) {
  switch (order) {
    case RowOrder::Company:
      return "select * from Candidatures order by Societe";
    case RowOrder::Date:
      return "select * from Candidatures order by datediffussion desc";
    case RowOrder::Status:
      return "select * from Candidatures order by Statut desc";
    case RowOrder::Origin:
      return "select * from Candidatures order by Origine";
    case RowOrder::Unsorted:
      break;
  }
  return AllRows;
}

// True if the schema has the columns of the table of fields, in its order and each of its kind.
consteval bool SchemaHoldsTheFields() {
  std::string_view rest = Schema;
  const auto word = [&rest] {
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    const std::string_view taken = rest.substr(0, rest.find_first_of(" ,\n"));
    rest.remove_prefix(taken.size());
    return taken;
  };
  const auto nextLine = [&rest] { rest.remove_prefix(rest.find('\n') + 1); };
  nextLine();
  nextLine();  // behind "create table"
  for (const auto& field : CandidatureFields) {
    const std::string_view column = word();
    if (!std::ranges::equal(column, field.Column(), {}, [](char c) { return static_cast<char16_t>(c); }))
      return false;
    if (word() != (field.holds == Holds::Words ? "text" : "integer")) return false;
    nextLine();
  }
  return word() == ");";
}
static_assert(SchemaHoldsTheFields());

constexpr std::size_t ColumnCount = CandidatureFieldCount;

std::string ColumnName(std::size_t c) { return ToUtf8(CandidatureFields[c].Column()); }

bool IsDate(std::size_t c) { return CandidatureFields[c].holds == Holds::Date; }

class StatementRow : public RowView {
 public:
  explicit StatementRow(SQLite::Statement& statement) : statement_(statement) {
    // The file may hold its columns in another order, or spell their names in another case.
    for (int i = 0; i < statement.getColumnCount(); ++i) {
      const auto name = FromUtf8(statement.getColumnName(i));
      for (std::size_t c = 0; name && c < ColumnCount; ++c)
        if (CompareIgnoringCase(*name, CandidatureFields[c].Column()) == 0) index_[c] = i;
    }
  }

  Text Value(Column column) const override {
    const auto value = statement_.getColumn(index_[column.Index()]);
    if (value.isNull()) return {};
    if (IsDate(column.Index())) return DateText(Day{value.getInt()});
    const std::string_view bytes{value.getText(), static_cast<std::size_t>(value.getBytes())};
    if (auto text = FromUtf8(bytes)) return std::move(*text);
    // Bytes that another program left there: each stands for a character rather than being lost.
    Text text;
    for (const char byte : bytes) text += static_cast<char16_t>(static_cast<unsigned char>(byte));
    return text;
  }

  Candidature All() const {
    Candidature row;
    for (std::size_t c = 0; c < ColumnCount; ++c) row.*(CandidatureFields[c].text) = Value(Column{c});
    return row;
  }

 private:
  SQLite::Statement& statement_;
  std::array<int, ColumnCount> index_{};
};

// "Intitule = :Intitule, ..." or the lists of an insert, for every column from `first` on.
std::string ForEachColumn(std::size_t first, const std::function<std::string(const std::string&)>& piece) {
  std::string list;
  for (std::size_t c = first; c < ColumnCount; ++c) list += (list.empty() ? "" : ", ") + piece(ColumnName(c));
  return list;
}

std::string InsertStatement() {
  return "insert into Candidatures (" + ForEachColumn(0, [](const auto& name) { return name; }) +
         ") values (" + ForEachColumn(0, [](const auto& name) { return ":" + name; }) + ")";
}

std::string UpdateStatement() {
  return "update Candidatures set " +
         ForEachColumn(1, [](const auto& name) { return name + " = :" + name; }) + " where Num = :Num";
}

void BindColumn(SQLite::Statement& statement, const fs::path& file, std::size_t c, const Text& value) {
  const std::string parameter = ":" + ColumnName(c);
  if (!IsDate(c)) {
    statement.bind(parameter, ToUtf8(value));
  } else if (value.empty()) {
    statement.bind(parameter);  // null
  } else if (const auto day = ParseDate(value)) {
    statement.bind(parameter, day->serial);
  } else {
    throw StoreError(file.string() + "\u00A0: la date " + Quoted(ToUtf8(value)) + " de la colonne " +
                     ColumnName(c) + " est refusée.");
  }
}

// Builds a database beside its place and moves it there whole. `build` fills the draft; `failure` is what
// the user is told when it cannot move.
void BuildInPlace(const fs::path& file, const char* failure,
                  const std::function<void(SQLite::Database& draft)>& build) {
  const fs::path draft = file.string() + ".nouveau";
  std::error_code error;
  fs::remove(draft, error);
  Reporting(file, [&] {
    SQLite::Database connection(draft.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    build(connection);
  });
  fs::rename(draft, file, error);
  if (error) throw StoreError(file.string() + "\u00A0: " + failure);
}

StoreError NoSuchRow(const fs::path& file, std::int32_t num) {
  return StoreError(file.string() + "\u00A0: la candidature n°\u00A0" + std::to_string(num) +
                    " n’existe plus.");
}

}  // namespace

class Database::Engine {
 public:
  Engine(fs::path path, const Clock& clock) : file(std::move(path)), connection(OpenConnection(file)) {
    Reporting(file, [&] {
      RestrictConnection(connection);
      RegisterCollation(connection);
      CheckVersion();
      CheckColumns();
      PrepareConnection(connection, clock);
    });
  }

  SQLite::Statement Row(std::int32_t num) {
    SQLite::Statement row(connection, OneRow + std::to_string(num));
    if (!row.executeStep()) throw NoSuchRow(file, num);
    return row;
  }

  const fs::path file;
  SQLite::Database connection;

 private:
  static SQLite::Database OpenConnection(const fs::path& file) {
    std::error_code error;
    if (!fs::exists(file, error)) throw StoreError(file.string() + "\u00A0: la base est introuvable.");
    return Reporting(
        file, [&] { return SQLite::Database(file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX); });
  }

  void CheckVersion() {
    const int version = connection.execAndGet("PRAGMA user_version").getInt();
    if (version > SchemaVersion)
      throw StoreError(file.string() +
                       "\u00A0: la base a été écrite par une version plus récente de Talvor.");
    if (version < SchemaVersion || !connection.tableExists("Candidatures")) throw NoSuchBase();
  }

  // Compiled only: a name that the table lacks is refused there.
  void CheckColumns() {
    const std::string columns = ForEachColumn(0, [](const auto& name) { return name; });
    try {
      const SQLite::Statement all(connection, "select " + columns + " from Candidatures");
    } catch (const SQLite::Exception& failure) {
      if (failure.getErrorCode() != SQLITE_ERROR) throw;
      throw NoSuchBase();
    }
  }

  StoreError NoSuchBase() const {
    return StoreError(file.string() + "\u00A0: ce fichier n’est pas une base de candidatures.");
  }
};

Database::Database() = default;
Database::~Database() = default;
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;

Database Database::Open(const Clock& clock) { return OpenFile(workspace_paths::Database(), clock); }

Database Database::OpenFile(const fs::path& file, const Clock& clock) {
  Database database;
  database.engine_ = std::make_unique<Engine>(file, clock);
  return database;
}

void Database::Create(const fs::path& file) {
  std::error_code error;
  if (fs::exists(file, error)) return;
  BuildInPlace(file, "la base ne peut pas être créée.", [](SQLite::Database& draft) {
    RegisterCollation(draft);
    draft.exec(std::string{Schema} + "PRAGMA user_version = " + std::to_string(SchemaVersion));
  });
}

void Database::CheckSound() {
  Engine& engine = Opened();
  Reporting(engine.file, [&] {
    // One row, « ok », or a row for each fault.
    const std::string found = engine.connection.execAndGet("PRAGMA quick_check").getString();
    if (found != "ok") throw SQLite::Exception(found, SQLITE_CORRUPT);
  });
}

bool Database::IsOpen() const noexcept { return engine_ != nullptr; }
void Database::Close() noexcept { engine_.reset(); }

Database::Engine& Database::Opened() {
  if (!engine_) throw StoreError(workspace_paths::Database().string() + "\u00A0: la base est déjà fermée.");
  return *engine_;
}

std::int64_t Database::CountRows() {
  Engine& engine = Opened();
  return Reporting(engine.file, [&] {
    return engine.connection.execAndGet("select count(*) from Candidatures").getInt64();
  });
}

std::int64_t Database::CountByStatus(TextView status) {
  Engine& engine = Opened();
  return Reporting(engine.file, [&] {
    SQLite::Statement count(engine.connection, CountStatus);
    count.bind(1, ToUtf8(status));
    count.executeStep();
    return count.getColumn(0).getInt64();
  });
}

void Database::WalkRows(RowOrder order, const std::function<void(const RowView&)>& visit) {
  Engine& engine = Opened();
  Reporting(engine.file, [&] {
    SQLite::Statement rows(engine.connection, QueryOf(order));
    const StatementRow row(rows);
    while (rows.executeStep()) visit(row);
  });
}

Candidature Database::ReadRow(std::int32_t num) {
  Engine& engine = Opened();
  return Reporting(engine.file, [&] {
    SQLite::Statement row = engine.Row(num);
    return StatementRow(row).All();
  });
}

PendingRow Database::BeginRow() {
  Engine& engine = Opened();
  const auto next = Reporting(engine.file, [&] {
    SQLite::Transaction transaction(engine.connection, SQLite::TransactionBehavior::IMMEDIATE);
    // Another program may have emptied the table of the numbers given.
    if (engine.connection.exec("update sqlite_sequence set seq = seq + 1 where name = 'Candidatures'") == 0)
      engine.connection.exec(
          "insert into sqlite_sequence select 'Candidatures', coalesce(max(Num), 0) + 1 from Candidatures");
    const auto number =
        engine.connection.execAndGet("select seq from sqlite_sequence where name = 'Candidatures'")
            .getInt64();
    transaction.commit();
    return number;
  });
  if (next > std::numeric_limits<std::int32_t>::max())
    throw StoreError(engine.file.string() + "\u00A0: tous les numéros de candidature sont pris.");
  return {static_cast<std::int32_t>(next), true};
}

PendingRow Database::EditRow(std::int32_t num) {
  Engine& engine = Opened();
  return Reporting(engine.file, [&] {
    static_cast<void>(engine.Row(num));  // only that it is there
    return PendingRow{num, false};
  });
}

void Database::Save(const PendingRow& row, const Candidature& values) {
  Engine& engine = Opened();
  Reporting(engine.file, [&] {
    SQLite::Statement save(engine.connection, row.isNew ? InsertStatement() : UpdateStatement());
    save.bind(":Num", row.num);
    for (std::size_t c = 1; c < ColumnCount; ++c)
      BindColumn(save, engine.file, c, values.*(CandidatureFields[c].text));
    if (save.exec() != 1) throw NoSuchRow(engine.file, row.num);
  });
}

void Database::DeleteRow(std::int32_t num) {
  Engine& engine = Opened();
  Reporting(engine.file, [&] { engine.connection.exec(DeleteOneRow + std::to_string(num)); });
}

void Database::DeleteAllRows() {
  Engine& engine = Opened();
  Reporting(engine.file, [&] { engine.connection.exec(DeleteEveryRow); });
}

void Database::AgeStatuses() {
  Engine& engine = Opened();
  Reporting(engine.file, [&] {
    SQLite::Transaction transaction(engine.connection, SQLite::TransactionBehavior::IMMEDIATE);
    for (const AgeingStep& step : AgeingSteps) engine.connection.exec(AgeingStatement(step));
    transaction.commit();
  });
}

void Database::BackUp(const fs::path& file) {
  Engine& engine = Opened();
  BuildInPlace(file, "la copie de la base ne peut pas être écrite.", [&](SQLite::Database& draft) {
    SQLite::Backup backup(draft, engine.connection);
    constexpr int AllPages = -1;
    const int outcome = backup.executeStep(AllPages);
    if (outcome != SQLITE_DONE) throw SQLite::Exception("copie inachevée", outcome);
  });
}

}  // namespace talvor
