// Bytes of any kind through the readers of the ground floor: what is read can be written back.

#include <cstdint>
#include <string_view>

#include "base/code_page.h"
#include "base/day.h"
#include "base/fonctionnel.h"
#include "base/line_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talvor;
  const std::string_view bytes{reinterpret_cast<const char*>(data), size};
  const Text page = FromCodePage(bytes);
  if (FromCodePage(ToCodePage(page)) != page) __builtin_trap();
  if (const auto text = FromUtf8(bytes); text && ToUtf8(*text) != bytes) __builtin_trap();
  if (const auto day = ParseDate(page); day && ParseDate(DateText(*day)) != day) __builtin_trap();
  if (SansAccents(page).size() != page.size() || NomPropre(page).size() != page.size()) __builtin_trap();
  const Text normal = Normaliser(page);
  if (Contains(normal, u"\r") || normal.starts_with(u' ') || normal.ends_with(u' ')) __builtin_trap();
  if (!(ValeurNumerique(page) >= 0)) __builtin_trap();
  std::size_t characters = 0;
  for (const auto& line : SplitLines(page)) characters += line.size();
  return characters <= page.size() ? 0 : (__builtin_trap(), 0);
}
