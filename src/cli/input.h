// What a command is given: texts, dates and records.
#pragma once

#include <iosfwd>
#include <nlohmann/json.hpp>
#include <string>

#include "base/day.h"
#include "base/fields.h"
#include "cli/console.h"

namespace talvor::cli {

using Json = nlohmann::ordered_json;

enum class LineEnds { AsCrLf, AsTheyStand };

// The text of a UTF-8 file, or of standard input for "-", without a byte order mark. Throws
// CommandError when it cannot be read or is not UTF-8.
[[nodiscard]] Text ReadText(const std::string& file, Console& console, LineEnds lineEnds);

// A text given on the command line; throws CommandError when it is not UTF-8.
[[nodiscard]] Text ArgumentText(const std::string& argument);

// JJ/MM/AAAA and what ParseDate takes; throws CommandError for anything else.
[[nodiscard]] Day ReadDay(const std::string& date);

// Parses JSON; throws CommandError, which names `source`, when it is none.
[[nodiscard]] Json ParseJson(const std::string& bytes, const std::string& source);

// The text of a JSON string; throws CommandError, which names `key`, for any other value.
[[nodiscard]] Text JsonText(const Json& value, const std::string& key);

// The fields of a record as a JSON object in the order of the table.
template <class Record, std::size_t N>
[[nodiscard]] Json JsonOf(const FieldTable<Record, N>& table, const Record& record) {
  Json object = Json::object();
  for (const auto& field : table) object[ToUtf8(field.name)] = ToUtf8(record.*(field.text));
  return object;
}

// Fills the fields that a JSON object names; throws CommandError for a key that is no field.
template <class Record, std::size_t N>
void FillFromJson(const Json& object, const FieldTable<Record, N>& table, Record& record) {
  if (!object.is_object()) throw CommandError("un objet JSON est attendu");
  for (const auto& [key, value] : object.items()) {
    const auto* field = FindField(table, FromUtf8(key).value_or(Text{}));
    if (field == nullptr) throw CommandError("champ inconnu\u00A0: " + Quoted(key));
    record.*(field->text) = JsonText(value, key);
  }
}

}  // namespace talvor::cli
