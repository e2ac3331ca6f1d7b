// A data folder with an empty database, and the form over fakes.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "tests/fakes/fakes.h"
#include "tests/fakes/scratch_folder.h"
#include "tracking/form_cand.h"
#include "workspace/workspace_paths.h"

namespace talvor {

class TrackingTest : public testing::Test {
 protected:
  TrackingTest() { Database::Create(workspace_paths::Database()); }

  Database Open() const { return Database::Open(clock); }

  // Saves a row as a foreign hand would, past the form.
  std::int32_t Insert(const Candidature& values) {
    Database database = Open();
    const PendingRow row = database.BeginRow();
    database.Save(row, values);
    return row.num;
  }

  Candidature Read(std::int32_t num) { return Open().ReadRow(num); }
  std::int64_t Count() { return Open().CountRows(); }

  Text DaysAgo(int days) const { return DateText(Day{clock.today.serial - days}); }

  ScratchFolder scratch;
  FakeClock clock{{2026, 3, 1}};
  FakeDialogs dialogs;
  FakeShell shell;
  FakeBrowser browser;
  Principale principale{shell};
  FormCand form{principale, clock, dialogs, shell, browser};
};

// The tree as lines: a group, then its leaves one step in.
inline std::string Outline(const CandidatureTree& tree) {
  std::string lines;
  const auto& nodes = tree.Nodes();
  for (std::size_t g = 0; g < nodes.size(); ++g) {
    if (nodes[g].parent != TreeNode::NoParent) continue;
    lines += ToUtf8(nodes[g].text) + "\n";
    for (const auto& leaf : nodes)
      if (leaf.parent == g) lines += "  " + ToUtf8(leaf.key) + ": " + ToUtf8(leaf.text) + "\n";
  }
  return lines;
}

}  // namespace talvor
