#include "letters/letter_file.h"

#include <array>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "base/fonctionnel.h"
#include "base/line_file.h"
#include "cv/cv_file.h"
#include "workspace/document_keeping.h"

namespace talvor {
namespace {

constexpr TextView NoNameMessage = u"Vous devez donner un nom au modèle avant de l'enregistrer";
constexpr TextView LineEndInValue = u"<N>";
constexpr TextView Corps = u"Corps";

// The titles of two frames of the form stand in the file as well; nothing reads them.
constexpr std::array<std::array<TextView, 2>, 2> FrameTitles{
    {{u"CadreObjet", u"Objet"}, {u"ListeCV", u"Liste des CV"}}};

class LetterFileWriter {
 public:
  explicit LetterFileWriter(const LetterModel& model) : model_(model) {}

  Text Lines() {
    for (const auto& field : LetterFields) {
      AddPlain(field.name, model_.*(field.text));
      // Flags and sentences stand where they stand among the fields of the form.
      if (field.name == u"LastSociete") AddFlags();
      if (field.name == u"Fonction") AddSentences();
    }
    for (const auto& [name, title] : FrameTitles) AddPlain(name, title);
    return std::move(lines_);
  }

 private:
  void AddPlain(TextView name, TextView text) {
    lines_.append(name).append(u"=").append(ReplaceAll(text, LineEnd, LineEndInValue)).append(LineEnd);
  }

  // The value goes as it is: a line end inside it cuts the line.
  void AddIndexed(std::size_t index, TextView name, TextView value) {
    lines_.append(NumberText(static_cast<long long>(index))).append(u":").append(name);
    lines_.append(u"=").append(value).append(LineEnd);
  }

  void AddFlags() {
    for (const auto& group : FlagGroups)
      for (std::size_t i = 0; i < FlagPair{}.size(); ++i)
        AddIndexed(i, group.name, (model_.*(group.flags))[i] ? u"1" : u"0");
  }

  // A sentence has a text and belongs to a group, so it is written in both forms.
  void AddSentences() {
    for (std::size_t i = 0; i < CorpsCount; ++i) {
      AddPlain(Corps, model_.Corps[i]);
      AddIndexed(i, Corps, model_.Corps[i]);
    }
  }

  const LetterModel& model_;
  Text lines_;
};

void ApplyIndexed(LetterModel& model, CvLine line) {
  const std::size_t index = *line.index;
  if (line.name == Corps && index < CorpsCount) model.Corps[index] = std::move(line.value);
  for (const auto& group : FlagGroups)
    if (line.name == group.name && index < FlagPair{}.size() && (line.value == u"0" || line.value == u"1"))
      SetFlag(model.*(group.flags), index, line.value == u"1");
}

void ApplyPlain(LetterModel& model, TextView name, Text value) {
  if (const auto* field = FindField(LetterFields, name)) model.*(field->text) = std::move(value);
}

// From the identity and the kind; empty when a pair of flags is at 0. An empty half of the identity
// leaves its blank.
Text NameFor(const LetterModel& model) {
  const auto proper = [](const Text& name) { return NomPropre(Normaliser(name)); };
  Text name;
  for (const auto& kind : LetterKinds)
    if (model.Check_Modele[kind.modele] && model.Check_candidature[kind.candidature])
      name = proper(model.Prenom) + u" " + proper(model.Nom) + Text{kind.suffix};
  return name;
}

bool WriteLetter(const LetterModel& model) {
  // A name can hold neither of these two; elsewhere they would lead to another file.
  if (model.NomLettre.find_first_of(TextView{u"/\0", 2}) != Text::npos) return false;
  return !SaveDocument(LetterFile(model.NomLettre), ToCodePage(LetterFileText(model))).Failed();
}

}  // namespace

std::filesystem::path LetterFile(TextView name) {
  return FileIn(workspace_paths::LetterFolder(), Text{name} + u".dat");
}

Text LetterFileText(const LetterModel& model) { return LetterFileWriter{model}.Lines(); }

void ApplyLetterLine(LetterModel& model, TextView line) {
  auto parsed = ParseCvLine(line);
  if (!parsed) return;
  if (parsed->index)
    ApplyIndexed(model, *std::move(parsed));
  else
    // `Corps` in this form names a group and no field: the sentences come from the indexed lines alone.
    ApplyPlain(model, parsed->name, std::move(parsed->value));
}

bool ReadLetter(const std::filesystem::path& file, LetterModel& model) {
  const auto lines = ReadLines(file);
  if (!lines) return false;
  for (const TextView line : *lines) ApplyLetterLine(model, line);
  return true;
}

void TakeFieldsOfCv(const std::filesystem::path& file, LetterModel& model) {
  for (const TextView line : ReadLines(file).value_or(std::vector<Text>{})) {
    // A check line is split like any other one, and «0:LangueProf» is the name of no field.
    const auto equals = line.find(u'=');
    if (equals == TextView::npos) continue;
    ApplyPlain(model, line.substr(0, equals), ReplaceAll(line.substr(equals + 1), LineEndInValue, LineEnd));
  }
}

bool EnregistrerLettre(LetterModel& model, Dialogs& dialogs, Principale& principale) {
  // The message stops nothing: the file is then written under the bare name «.dat».
  if (model.NomLettre.empty() && model.Nom.empty() && model.Prenom.empty()) dialogs.Tell(NoNameMessage);
  // A name that is there is kept, even with the suffix of another kind.
  else if (model.NomLettre.empty())
    model.NomLettre = NameFor(model);

  // The new file takes the place of the old one; a failure is no reason to stop.
  const bool written = WriteLetter(model);

  principale.InitMenu();
  return written;
}

}  // namespace talvor
