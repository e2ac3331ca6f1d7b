// Lines of any kind as a letter model and as propositions: every walk ends, and what was read as a
// model is read again from what it writes.

#include <cstdint>

#include "base/code_page.h"
#include "base/line_file.h"
#include "letters/composer.h"
#include "letters/letter_file.h"
#include "letters/propositions.h"

namespace {

using namespace talvor;

LetterModel ModelOf(const std::vector<Text>& lines) {
  LetterModel model;
  for (const TextView line : lines) ApplyLetterLine(model, line);
  return model;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto lines = SplitLines(FromCodePage({reinterpret_cast<const char*>(data), size}));

  LetterModel model = ModelOf(lines);
  const LetterModel again = ModelOf(SplitLines(FromCodePage(ToCodePage(LetterFileText(model)))));
  for (const auto& field : LetterFields)
    if (again.*(field.text) != model.*(field.text)) __builtin_trap();
  if (again.Corps != model.Corps) __builtin_trap();

  Propositions table;
  table.Take(lines);
  table.FillEmpty(model.Corps);
  for (std::size_t i = 0; i < CorpsCount; ++i)
    for (const bool back : {false, true}) {
      for (std::size_t step = 0; step < 4; ++step) {
        const Text& corps = model.Corps[i];
        model.Corps[i] = WithGender(back ? table.Previous(i, corps) : table.Next(i, corps), model.Prénom);
      }
    }
  ComposerLettre(model, Day{39156});
  return 0;
}
