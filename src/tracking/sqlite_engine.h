// What the store adds to SQLite: its own date(), a collation without regard to case, French reports.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <filesystem>
#include <string>

#include "platform/clock.h"
#include "tracking/store.h"

namespace talvor {

// The name under which the schema's text columns ask for the collation.
inline constexpr const char* CollationName = "SansCasse";

// Takes from the schema of the file what it could do by itself: triggers, views, functions of the program.
void RestrictConnection(SQLite::Database& connection);
void RegisterCollation(SQLite::Database& connection);
// Registers the function date(), which answers today's serial from the clock, and the way of writing.
void PrepareConnection(SQLite::Database& connection, const Clock& clock);

// Orders two UTF-8 texts without regard to case.
int CompareUtf8IgnoringCase(std::string_view a, std::string_view b) noexcept;

// The report of an engine failure: the file, then what is wrong with it.
[[nodiscard]] StoreError ReportOf(const std::filesystem::path& file, const SQLite::Exception& failure);

// Runs one operation of the engine on `file` and turns its failure into a StoreError.
template <class Operation>
auto Reporting(const std::filesystem::path& file, Operation&& operation) {
  try {
    return operation();
  } catch (const SQLite::Exception& failure) {
    throw ReportOf(file, failure);
  }
}

}  // namespace talvor
