#include <ostream>
#include <string>

#include "cli/commands.h"
#include "cli/input.h"
#include "cli/workspace.h"
#include "reports/printed_reports.h"
#include "reports/statistics.h"

namespace talvor::cli {
namespace {

Json JsonOfStatistics(const FormStat& stat) {
  Json counts = Json::object();
  for (const auto& row : stat.Statuts) counts[ToUtf8(row.Statut)] = std::stoll(ToUtf8(row.Nb));
  Json interviews = Json::array();
  for (const TextView line : Split(stat.RDV, LineEnd))
    if (!line.empty()) interviews.push_back(ToUtf8(line));
  return {{"DateJour", ToUtf8(stat.DateJour)}, {"Statuts", counts}, {"RDV", interviews}};
}

// A bar of at most forty marks, one for each count that the window's bar tells apart.
void PrintStatistics(const FormStat& stat, std::ostream& out) {
  constexpr int WidthOfOne = 100;
  out << ToUtf8(stat.DateJour) << "\n\n";
  for (const auto& row : stat.Statuts) {
    const std::string name = ToUtf8(row.Statut);
    const std::string count = ToUtf8(row.Nb);
    out << name << std::string(36 - name.size(), ' ')
        << std::string(count.size() < 5 ? 5 - count.size() : 0, ' ') << count;
    if (row.Graph > 1) out << "  " << std::string(static_cast<std::size_t>(row.Graph / WidthOfOne), '#');
    out << '\n';
  }
  if (!stat.RDV.empty()) out << '\n' << ToUtf8(ReplaceAll(stat.RDV, LineEnd, u"\n"));
}

}  // namespace

ExitCode Rapport(const std::string& workspace, const std::string& report, Console& console) {
  Workspace space(workspace, Text{BlankPage}, console);
  const ReportMode mode = report == "liste" ? ReportMode::Liste : ReportMode::Justificatif;
  Database database = Database::Open(space.clock);
  WriteReport(database, mode, space.principale, space.clock.Today(),
              [&console](TextView piece) { console.out << ToUtf8(piece); });
  return Done;
}

ExitCode Statistiques(const std::string& workspace, bool json, Console& console) {
  Workspace space(workspace, Text{BlankPage}, console);
  FormStat stat(space.clock);
  stat.Charger();
  if (json)
    console.out << JsonOfStatistics(stat).dump(2) << '\n';
  else
    PrintStatistics(stat, console.out);
  return Done;
}

}  // namespace talvor::cli
