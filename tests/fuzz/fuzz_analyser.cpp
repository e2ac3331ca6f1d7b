// Any UTF-16 text through the analyser: it ends, and its fields are made of what the text holds.

#include <cstdint>
#include <cstring>
#include <string_view>

#include "ads/analyser.h"
#include "ads/ungluing.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talvor;
  if (size < 1) return 0;
  // The first byte chooses the page; the rest is the text, as UTF-8 where it is and byte by byte otherwise.
  const std::string_view bytes{reinterpret_cast<const char*>(data) + 1, size - 1};
  Text texte = FromUtf8(bytes).value_or(Text(bytes.begin(), bytes.end()));
  const AdContext context{.address = data[0] % 2 == 0 ? Text{BlankPage} : texte.substr(0, 30),
                          .today = Day{39156}};
  if (data[0] % 4 >= 2) texte = DecollerMots(texte);
  AdFields record;
  AnalyserAnnonce(texte, record, context);
  if (record.Intitule.size() > size * 2 + 64) __builtin_trap();
  return 0;
}
