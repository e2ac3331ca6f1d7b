// The store of the candidatures: one SQLite file, one table. Nothing holds it open but the object of
// one operation.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>

#include "platform/clock.h"
#include "tracking/candidature.h"

namespace talvor {

// A failure of the database engine. The message is French, UTF-8, and names the file and the cause.
class StoreError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The orders of the list, and the table as it stands.
enum class RowOrder { Company, Date, Status, Origin, Unsorted };

// The row under the walk, valid only inside the visit.
class RowView {
 public:
  virtual ~RowView() = default;
  // The value of a column as a text; a null date is empty.
  [[nodiscard]] virtual Text Value(Column column) const = 0;
};

// A row begun or opened for a change; nothing reaches the file before Database::Save.
struct PendingRow {
  std::int32_t num = 0;
  bool isNew = false;
};

// A handle of the database. Every operation throws StoreError on a failure of the engine, and so does
// every operation on a closed handle.
class Database {
 public:
  Database();  // closed
  ~Database();
  Database(Database&&) noexcept;
  Database& operator=(Database&&) noexcept;

  // Opens Talvor.mdb of the data folder for reading and writing. A file that is missing, that is not
  // a database of candidatures or that a newer version has written is refused and left untouched. The
  // clock must outlive the handle.
  [[nodiscard]] static Database Open(const Clock& clock);
  // The same for a database that stands elsewhere.
  [[nodiscard]] static Database OpenFile(const std::filesystem::path& file, const Clock& clock);

  // Makes an empty database in `file`; one that stands there is left alone.
  static void Create(const std::filesystem::path& file);

  // Reads the whole file; throws when it is damaged anywhere. For a file that comes from elsewhere.
  void CheckSound();

  [[nodiscard]] bool IsOpen() const noexcept;
  void Close() noexcept;

  [[nodiscard]] std::int64_t CountRows();
  [[nodiscard]] std::int64_t CountByStatus(TextView status);

  // Calls `visit` for every row in order. Texts sort without regard to case, rows that tie by `Num`;
  // rows without a date come last among the latest first.
  void WalkRows(RowOrder order, const std::function<void(const RowView&)>& visit);

  // The row of a key; a key without a row is a failure of the engine.
  [[nodiscard]] Candidature ReadRow(std::int32_t num);

  // Begins a new row under the next number, which is lost if the row is not saved.
  [[nodiscard]] PendingRow BeginRow();
  // Opens the row of a key for a change; a key without a row is a failure of the engine.
  [[nodiscard]] PendingRow EditRow(std::int32_t num);
  // Writes all columns of the row but `Num` and commits. A date that cannot be read is refused.
  void Save(const PendingRow& row, const Candidature& values);

  void DeleteRow(std::int32_t num);
  void DeleteAllRows();

  // Moves statuses on by the date of today, all steps of the ageing (tracking/ageing.h) or none.
  void AgeStatuses();

  // Writes a whole copy of the database to `file`, replacing it only once the copy is complete.
  void BackUp(const std::filesystem::path& file);

 private:
  class Engine;
  Engine& Opened();

  std::unique_ptr<Engine> engine_;
};

}  // namespace talvor
