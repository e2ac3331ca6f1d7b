#include "cli/input.h"

#include <filesystem>
#include <iterator>
#include <utility>

#include "base/line_file.h"

namespace talvor::cli {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

std::string ReadAll(const std::string& file, Console& console) {
  if (file == "-") return {std::istreambuf_iterator<char>{console.in}, {}};
  auto bytes = ReadBytes(file);
  if (!bytes) throw CommandError("le fichier " + Quoted(file) + " est introuvable ou illisible");
  return std::move(*bytes);
}

}  // namespace

Text ReadText(const std::string& file, Console& console, LineEnds lineEnds) {
  const std::string bytes = ReadAll(file, console);
  std::string_view content = bytes;
  if (content.starts_with(ByteOrderMark)) content.remove_prefix(ByteOrderMark.size());
  auto text = FromUtf8(content);
  const std::string name = file == "-" ? "l’entrée standard" : "le fichier " + Quoted(file);
  if (!text) throw CommandError(name + " n’est pas un texte UTF-8");
  return lineEnds == LineEnds::AsCrLf ? WithCrLf(*text) : std::move(*text);
}

Text ArgumentText(const std::string& argument) {
  auto text = FromUtf8(argument);
  if (!text) throw CommandError("un argument n’est pas un texte UTF-8");
  return std::move(*text);
}

Day ReadDay(const std::string& date) {
  const auto day = ParseDate(ArgumentText(date));
  if (!day) throw CommandError("la date " + Quoted(date) + " est incorrecte (JJ/MM/AAAA)");
  return *day;
}

Json ParseJson(const std::string& bytes, const std::string& source) {
  Json value = Json::parse(bytes, nullptr, /*allow_exceptions=*/false);
  if (value.is_discarded()) throw CommandError(source + " n’est pas du JSON");
  return value;
}

Text JsonText(const Json& value, const std::string& key) {
  if (!value.is_string()) throw CommandError("la valeur de " + Quoted(key) + " n’est pas un texte");
  return ArgumentText(value.get_ref<const std::string&>());
}

}  // namespace talvor::cli
