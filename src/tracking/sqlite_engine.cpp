#include "tracking/sqlite_engine.h"

#include <sqlite3.h>

#include <algorithm>

namespace talvor {
namespace {

constexpr int BusyMilliseconds = 2000;

// Takes one code point off UTF-8 that the store itself has written; a stray byte stands for itself.
char32_t TakeCodePoint(std::string_view& bytes) {
  const auto at = [&](std::size_t i) -> char32_t { return static_cast<unsigned char>(bytes[i]); };
  const char32_t lead = at(0);
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
  char32_t c = lead;
  if (length > 1 && length <= bytes.size()) {
    c = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) c = (c << 6) | (at(i) & 0x3F);
  }
  bytes.remove_prefix(std::min(length, bytes.size()));
  return c;
}

char32_t Folded(char32_t c) { return c < 0x10000 ? ToUpper(static_cast<char16_t>(c)) : c; }

int Collate(void*, int sizeA, const void* a, int sizeB, const void* b) {
  return CompareUtf8IgnoringCase({static_cast<const char*>(a), static_cast<std::size_t>(sizeA)},
                                 {static_cast<const char*>(b), static_cast<std::size_t>(sizeB)});
}

void AnswerToday(sqlite3_context* context, int, sqlite3_value**) {
  const auto* clock = static_cast<const Clock*>(sqlite3_user_data(context));
  sqlite3_result_int(context, clock->Today().serial);
}

void Check(SQLite::Database& connection, int code) {
  if (code != SQLITE_OK) throw SQLite::Exception(connection.getHandle(), code);
}

std::string Cause(const SQLite::Exception& failure) {
  switch (failure.getErrorCode()) {
    case SQLITE_NOTADB:
      return "ce fichier n’est pas une base de données.";
    case SQLITE_CORRUPT:
      return "la base de données est endommagée.";
    case SQLITE_CANTOPEN:
      return "la base ne peut pas être ouverte.";
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return "la base est utilisée par un autre programme.";
    case SQLITE_READONLY:
      return "la base ou son dossier n’est accessible qu’en lecture.";
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return "l’accès à la base est refusé.";
    case SQLITE_FULL:
      return "le disque est plein.";
    case SQLITE_IOERR:
      return "le disque ne répond pas correctement.";
    case SQLITE_NOMEM:
      return "la mémoire est insuffisante.";
    case SQLITE_TOOBIG:
      return "un texte est trop long pour la base.";
    case SQLITE_ERROR:
      return "la base n’a pas la structure attendue.";
    default:
      return "le moteur de base de données signale l’erreur n°\u00A0" +
             std::to_string(failure.getErrorCode()) + ".";
  }
}

}  // namespace

int CompareUtf8IgnoringCase(std::string_view a, std::string_view b) noexcept {
  // What two neighbours of a sort have in common is most of them.
  const auto [endA, endB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
  if (endA == a.end() && endB == b.end()) return 0;
  while (!a.empty() && !b.empty()) {
    const char32_t x = Folded(TakeCodePoint(a));
    const char32_t y = Folded(TakeCodePoint(b));
    if (x != y) return x < y ? -1 : 1;
  }
  return a.empty() ? (b.empty() ? 0 : -1) : 1;
}

void RegisterCollation(SQLite::Database& connection) {
  Check(connection, sqlite3_create_collation_v2(connection.getHandle(), CollationName, SQLITE_UTF8, nullptr,
                                                Collate, nullptr));
}

void RestrictConnection(SQLite::Database& connection) {
  connection.setBusyTimeout(BusyMilliseconds);
  constexpr int Off = 0;
  for (const int freedom :
       {SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW, SQLITE_DBCONFIG_TRUSTED_SCHEMA})
    Check(connection, sqlite3_db_config(connection.getHandle(), freedom, Off, nullptr));
  Check(connection, sqlite3_db_config(connection.getHandle(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr));
}

void PrepareConnection(SQLite::Database& connection, const Clock& clock) {
  // SQLite hands the pointer back as it got it, and AnswerToday only reads through it.
  void* const user = const_cast<Clock*>(&clock);
  Check(connection, sqlite3_create_function_v2(connection.getHandle(), "date", 0, SQLITE_UTF8, user,
                                               AnswerToday, nullptr, nullptr, nullptr));
  connection.exec("PRAGMA journal_mode = DELETE");
  connection.exec("PRAGMA synchronous = FULL");
}

StoreError ReportOf(const std::filesystem::path& file, const SQLite::Exception& failure) {
  return StoreError(file.string() + "\u00A0: " + Cause(failure));
}

}  // namespace talvor
