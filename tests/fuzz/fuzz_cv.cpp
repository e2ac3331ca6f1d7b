// Any bytes as a CV file and as a pasted identity block: what was read is written and read again as it
// was, the page keeps its bound, and the parser makes its fields of what the block holds.

#include <cstdint>
#include <utility>

#include "base/code_page.h"
#include "base/line_file.h"
#include "cv/cv_file.h"
#include "cv/identity_parser.h"
#include "cv/renderer.h"

namespace {

using namespace talvor;

CvDocument CvOf(TextView text) {
  CvDocument cv;
  for (const TextView line : SplitLines(text))
    if (auto parsed = ParseCvLine(line)) ApplyCvLine(cv, *std::move(parsed));
  return cv;
}

// Every field twice, and the sections that can be cut and swapped.
Text PageOfAllFields() {
  Text page = u"Arial #FF6600 #c0c0c0 #Photographie# P01 #Etudes# P02 P03 #Experiences# P04 P05 P06 P07";
  for (const auto& field : CvFields)
    page.append(u"#").append(ReplaceAll(field.name, u"é", u"e")).append(u"#");
  return page;
}

void CheckFile(TextView text) {
  const CvDocument cv = CvOf(text);
  const Text written = CvFileText(cv);
  if (CvFileText(CvOf(FromCodePage(ToCodePage(written)))) != written) __builtin_trap();
  if (FillTemplate(cv, PageOfAllFields(), PhotoOnPage::Picture).size() > 2 * LargestPage) __builtin_trap();
}

void CheckIdentity(Text block) {
  const std::size_t size = block.size();
  CvDocument cv;
  cv.Identite = std::move(block);
  if (!ParseIdentity(cv)) return;
  if (cv.Identite.size() > size) __builtin_trap();
  for (const Text* field : {&cv.Prenom, &cv.Nom, &cv.Adresse1, &cv.Adresse2, &cv.CP, &cv.Ville, &cv.Tel,
                            &cv.Mob, &cv.Email, &cv.Age, &cv.DateNaissance})
    if (field->size() > size) __builtin_trap();
  if (cv.CP.size() > 6 || Contains(cv.Email, u" ")) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Text text = FromCodePage({reinterpret_cast<const char*>(data), size});
  CheckFile(text);
  CheckIdentity(WithCrLf(text));
  return 0;
}
