// Lines of any kind as a letter model: what was read as a model is read again from what it writes, and
// every letter is composed.

#include <cstdint>
#include <vector>

#include "base/code_page.h"
#include "base/line_file.h"
#include "letters/composer.h"
#include "letters/letter_file.h"

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

  for (Text& corps : model.Corps) corps = WithGender(corps, model.Prenom);
  ComposerLettre(model, Day{39156});
  return 0;
}
