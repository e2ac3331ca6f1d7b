#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "app/installation.h"
#include "cli/commands.h"
#include "cli/input.h"
#include "cli/workspace.h"

namespace talvor::cli {
namespace {

namespace fs = std::filesystem;

struct TriName {
  const char* name;
  Tri tri;
};

constexpr std::array<TriName, 4> TriNames{{{"societes", Tri::Societes},
                                           {"dates", Tri::Dates},
                                           {"statuts", Tri::Statuts},
                                           {"origine", Tri::Origine}}};

Tri TriOf(const std::string& name) {
  for (const auto& row : TriNames)
    if (name == row.name) return row.tri;
  throw CommandError("tri inconnu\u00A0: " + Quoted(name));
}

// The groups in order, each with its leaves.
std::vector<std::vector<std::size_t>> LeavesByGroup(const std::vector<TreeNode>& nodes) {
  std::vector<std::vector<std::size_t>> leaves(nodes.size());
  for (std::size_t i = 0; i < nodes.size(); ++i)
    if (nodes[i].parent != TreeNode::NoParent) leaves[nodes[i].parent].push_back(i);
  return leaves;
}

}  // namespace

ExitCode Preparer(const std::string& workspace, Console& console) {
  const fs::path folder =
      workspace.empty() ? workspace_paths::UsualDataFolder(SystemEnvironment{}) : fs::path{workspace};
  InstallerDossier(folder, DeliveredFiles());
  console.out << "Dossier de données prêt\u00A0: " << fs::absolute(folder).lexically_normal().string()
              << '\n';
  return Done;
}

ExitCode Capturer(const std::string& workspace, const CaptureOptions& options, Console& console) {
  // Read first: the file's name is relative to where the user stands.
  Text texte = ReadText(options.file, console, LineEnds::AsCrLf);
  Workspace space(workspace, options.address ? ArgumentText(*options.address) : Text{BlankPage}, console);
  space.form.ShowWebPane();  // what fails is a capture, and the message says so
  space.capture.CapturerTexte(std::move(texte));
  if (space.form.Num.empty()) return Refused;
  console.out << ToUtf8(space.form.Num) << '\n';
  return Done;
}

ExitCode Candidatures(const std::string& workspace, const std::string& tri, bool json, Console& console) {
  Workspace space(workspace, Text{BlankPage}, console);
  space.form.SortBy(TriOf(tri));
  const auto& nodes = space.form.Liste.Nodes();
  const auto leaves = LeavesByGroup(nodes);
  Json groups = Json::array();
  for (std::size_t g = 0; g < nodes.size(); ++g) {
    if (nodes[g].parent != TreeNode::NoParent) continue;
    Json group{{"groupe", ToUtf8(nodes[g].text)}, {"candidatures", Json::array()}};
    if (!json) console.out << ToUtf8(nodes[g].text) << '\n';
    for (const std::size_t leaf : leaves[g]) {
      const std::string num = ToUtf8(nodes[leaf].key).substr(1);
      if (json)
        group["candidatures"].push_back({{"Num", num}, {"Texte", ToUtf8(nodes[leaf].text)}});
      else
        console.out << "  " << num << "  " << ToUtf8(nodes[leaf].text) << '\n';
    }
    if (json) groups.push_back(std::move(group));
  }
  if (json)
    console.out << groups.dump(2) << '\n';
  else if (nodes.empty())
    console.out << "Aucune candidature\n";
  return Done;
}

ExitCode UneCandidature(const std::string& workspace, std::int32_t num, bool json, Console& console) {
  Workspace space(workspace, Text{BlankPage}, console);
  const Candidature detail = Database::Open(space.clock).ReadRow(num);
  if (json) {
    console.out << JsonOf(DetailFields, detail).dump(2) << '\n';
    return Done;
  }
  for (const auto& field : DetailFields) {
    const Text& value = detail.*(field.text);
    if (value.empty()) continue;
    // The lines of a long text stand under its name, one step in.
    const Text shown =
        Contains(value, LineEnd) ? u"\n    " + ReplaceAll(value, LineEnd, u"\n    ") : u" " + value;
    console.out << ToUtf8(field.name) << "\u00A0:" << ToUtf8(shown) << '\n';
  }
  return Done;
}

}  // namespace talvor::cli
