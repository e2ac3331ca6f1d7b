#include <optional>
#include <string>

#include "ads/analyser.h"
#include "ads/page_rating.h"
#include "ads/ungluing.h"
#include "app/host.h"
#include "capture/form_cand_web.h"
#include "cli/commands.h"
#include "cli/input.h"

namespace talvor::cli {
namespace {

std::string Line(const Json& value) { return value.dump(-1, ' ', false, Json::error_handler_t::replace); }

AdContext ContextToday() {
  AdContext context;
  context.today = SystemClock{}.Today();
  return context;
}

Json AnalyseRecord(const Json& input) {
  if (!input.is_object()) throw CommandError("un objet JSON est attendu");
  AdContext context = ContextToday();
  AdFields record;
  Text texte;
  for (const auto& [key, value] : input.items()) {
    if (key == "texte")
      texte = JsonText(value, key);
    else if (key == "adresse")
      context.address = JsonText(value, key);
    else if (key == "date")
      context.today = ReadDay(ToUtf8(JsonText(value, key)));
    else if (key == "termfin")
      context.TermFin = JsonText(value, key);
    else if (key == "initial")
      FillFromJson(value, AdFieldTable, record);
    else
      throw CommandError("clé inconnue\u00A0: " + Quoted(key));
  }
  AnalyserAnnonce(texte, record, context);
  return JsonOf(AdFieldTable, record);
}

}  // namespace

ExitCode Analyser(const AnalyseOptions& options, Console& console) {
  AdContext context = ContextToday();
  AdFields record;
  if (options.address) context.address = ArgumentText(*options.address);
  if (options.date) context.today = ReadDay(*options.date);
  if (options.initial) {
    const Text json = ReadText(*options.initial, console, LineEnds::AsTheyStand);
    FillFromJson(ParseJson(ToUtf8(json), Quoted(*options.initial)), AdFieldTable, record);
  }
  Text texte = ReadText(options.file, console, options.raw ? LineEnds::AsTheyStand : LineEnds::AsCrLf);
  if (options.unglue) texte = DecollerMots(texte);
  AnalyserAnnonce(texte, record, context);
  console.out << JsonOf(AdFieldTable, record).dump(2) << '\n';
  return Done;
}

ExitCode AnalyserLot(Console& console) {
  ExitCode code = Done;
  std::string line;
  for (long long number = 1; std::getline(console.in, line); ++number) {
    if (line.find_first_not_of(" \t\r") == std::string::npos) continue;
    try {
      console.out << Line(AnalyseRecord(ParseJson(line, "la ligne"))) << '\n';
    } catch (const CommandError& error) {
      console.err << "ligne " << number << "\u00A0: " << error.what() << '\n';
      console.out << Line(Json{{"erreur", error.what()}}) << '\n';
      code = Refused;
    }
  }
  return code;
}

ExitCode Evaluer(const std::string& file, const std::optional<std::string>& address, Console& console) {
  const Text page = ReadText(file, console, LineEnds::AsCrLf);
  const PageRating rating = RatePage(page, address ? ArgumentText(*address) : Text{BlankPage});
  const Json object{{"ScoreAnnonce", rating.ScoreAnnonce},
                    {"ScoreMetiers", rating.ScoreMetiers},
                    {"Niveau", rating.Niveau},
                    {"FrameWeb", FormCandWeb::StripTop(rating)}};
  console.out << object.dump(2) << '\n';
  return Done;
}

}  // namespace talvor::cli
