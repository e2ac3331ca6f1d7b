#include "cv/cv_file.h"

#include <span>
#include <utility>

#include "base/code_page.h"
#include "base/fonctionnel.h"
#include "base/line_file.h"
#include "workspace/document_keeping.h"

namespace talvor {
namespace {

constexpr TextView NoNameMessage = u"Vous devez donner un nom au CV avant de l'enregistrer";
constexpr TextView WriteFailedMessage = u"Pb lors de l'enregistrement du CV : ";
constexpr TextView LineBreakInValue = u"<N>";

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

std::optional<CvLine> ParseCheckLine(TextView line) {
  const auto colon = line.find(u':');
  if (colon == TextView::npos) return std::nullopt;
  const auto equals = line.find(u'=', colon);
  if (equals == TextView::npos) return std::nullopt;
  const double number = ValeurNumerique(line.substr(0, colon));
  if (number >= static_cast<double>(LanguageCount)) return std::nullopt;  // beyond every group
  const auto index = static_cast<std::size_t>(number);
  if (static_cast<double>(index) != number) return std::nullopt;
  return CvLine{Text{line.substr(colon + 1, equals - colon - 1)}, index, Text{line.substr(equals + 1)}};
}

void ApplyCheck(CvDocument& cv, const CvLine& line) {
  const CheckGroup* group = FindCheckGroup(line.name);
  if (group == nullptr || *line.index >= group->size) return;
  if (line.value == u"0" || line.value == u"1") (cv.*(group->values))[*line.index] = line.value == u"1";
}

class CvFileWriter {
 public:
  explicit CvFileWriter(const CvDocument& cv) : cv_(cv) {}

  Text Lines() {
    for (const auto& field : CvFields) {
      AddText(field.name, cv_.*(field.text));
      // Checks stand where their boxes stand among the fields of the form, the last index first.
      if (field.name == u"Competences")
        AddChecks(Groups.first(3));
      else if (field.name == u"Age")
        AddChecks(Groups.subspan(3, 1));
      else if (field.name == u"Police") {
        AddChecks(Groups.subspan(4, 1));
        AddChecks(Groups.subspan(5, 1));
      }
    }
    return std::move(lines_);
  }

 private:
  void AddText(TextView name, TextView text) {
    lines_.append(name).append(u"=").append(ReplaceAll(text, LineEnd, LineBreakInValue)).append(LineEnd);
  }

  // Groups of one size, row by row.
  void AddChecks(std::span<const CheckGroup> groups) {
    for (std::size_t i = groups.front().size; i-- > 0;)
      for (const auto& group : groups) {
        const bool ticked = (cv_.*(group.values))[i];
        lines_.append(NumberText(static_cast<long long>(i))).append(u":").append(group.name);
        lines_.append(ticked ? u"=1" : u"=0").append(LineEnd);
      }
  }

  static constexpr std::span<const CheckGroup> Groups{CheckGroups};

  const CvDocument& cv_;
  Text lines_;
};

}  // namespace

std::filesystem::path CvFile(TextView name) {
  return FileIn(workspace_paths::CvFolder(), Text{name} + u".dat");
}

std::optional<CvLine> ParseCvLine(TextView line) {
  if (line.empty()) return std::nullopt;
  if (IsDigit(line.front())) return ParseCheckLine(line);
  const auto equals = line.find(u'=');
  if (equals == TextView::npos) return std::nullopt;
  return CvLine{Text{line.substr(0, equals)}, std::nullopt,
                ReplaceAll(line.substr(equals + 1), LineBreakInValue, LineEnd)};
}

const Field<CvDocument>* ApplyCvLine(CvDocument& cv, CvLine line) {
  if (line.index) {
    ApplyCheck(cv, line);
    return nullptr;
  }
  const auto* field = FindField(CvFields, line.name);
  if (field == nullptr || field - CvFields.data() >= std::ptrdiff_t{FirstUnreadField}) return nullptr;
  cv.*(field->text) = std::move(line.value);
  return field;
}

bool ReadCv(const std::filesystem::path& file, CvDocument& cv) {
  const auto lines = ReadLines(file);
  if (!lines) return false;
  for (const TextView line : *lines)
    if (auto parsed = ParseCvLine(line)) ApplyCvLine(cv, *std::move(parsed));
  return true;
}

Text CvFileText(const CvDocument& cv) { return CvFileWriter{cv}.Lines(); }

bool SauvegarderCV(CvDocument& cv, Dialogs& dialogs, Principale& principale) {
  if (cv.NomCV.empty() && cv.Nom.empty() && cv.Prenom.empty()) {
    dialogs.Tell(NoNameMessage);
    return false;
  }
  if (cv.NomCV.empty()) cv.NomCV = cv.Nom + u" " + cv.Prenom;
  cv.NomCV = NomPropre(Normaliser(cv.NomCV));
  if (SaveDocument(CvFile(cv.NomCV), ToCodePage(CvFileText(cv))).Failed()) {
    dialogs.Tell(Text{WriteFailedMessage} + cv.NomCV);
    return false;
  }
  principale.InitMenu();
  return true;
}

}  // namespace talvor
