#include <optional>
#include <string>

#include "app/host.h"
#include "cli/commands.h"
#include "cli/input.h"
#include "letters/composer.h"
#include "letters/letter_file.h"
#include "letters/merge.h"

namespace talvor::cli {
namespace {

constexpr FieldTable<LetterModel, 3> ComposedFields{{
    {u"Text1", &LetterModel::Text1},
    {u"Objet", &LetterModel::Objet},
    {u"Domaine", &LetterModel::Domaine},
}};

constexpr FieldTable<MergedLetter, 3> MergedFields{{
    {u"Texte", &MergedLetter::Texte},
    {u"Email", &MergedLetter::Email},
    {u"Objet", &MergedLetter::Objet},
}};

Day DayOfOption(const std::optional<std::string>& date) {
  return date ? ReadDay(*date) : SystemClock{}.Today();
}

}  // namespace

ExitCode LettreComposer(const ComposeOptions& options, Console& console) {
  const Day today = DayOfOption(options.date);
  LetterModel model;
  if (!ReadLetter(options.file, model))
    throw CommandError("fichier non accessible\u00A0: " + Quoted(options.file));
  ComposerLettre(model, today);
  console.out << JsonOf(ComposedFields, model).dump(2) << '\n';
  return Done;
}

ExitCode LettreFusionner(const MergeOptions& options, Console& console) {
  const Day today = DayOfOption(options.date);
  const Text json = ReadText(options.candidature, console, LineEnds::AsTheyStand);
  CandidatureTexts candidature;
  FillFromJson(ParseJson(ToUtf8(json), Quoted(options.candidature)), CandidatureTags, candidature);
  MergedLetter letter;
  ConsoleDialogs dialogs{console.err};
  ConsoleShell shell;
  if (!FusionnerLettre(options.file, candidature, today, letter, dialogs, shell)) return Refused;
  console.out << JsonOf(MergedFields, letter).dump(2) << '\n';
  return Done;
}

}  // namespace talvor::cli
