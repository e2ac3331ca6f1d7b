// The list of all candidatures as a tree of two levels: groups, and a leaf for each row.
#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "tracking/store.h"

namespace talvor {

// The sort options `Tri`, by index.
enum class Tri { Societes, Dates, Statuts, Origine };

struct TreeNode {
  static constexpr std::size_t NoParent = static_cast<std::size_t>(-1);

  Text key;
  Text text;
  std::size_t parent = NoParent;  // index of the parent node; a group has none
  std::size_t childCount = 0;
};

class CandidatureTree {
 public:
  // Rows by the order of the option, grouped by label. What an engine failure interrupts stands as far
  // as it was built, and nothing is said of it.
  [[nodiscard]] static CandidatureTree Build(Database& database, Tri tri);

  // Groups in order, each with its leaves somewhere behind it.
  [[nodiscard]] const std::vector<TreeNode>& Nodes() const noexcept { return nodes_; }
  // The node of a key, or null.
  [[nodiscard]] const TreeNode* Find(TextView key) const;
  [[nodiscard]] bool Empty() const noexcept { return nodes_.empty(); }

 private:
  // Keys are unique and tell case apart: a second group of one label is not added, nor is a leaf under
  // a key that is not there or with the key of a group.
  void AddGroup(const Text& label);
  void AddLeaf(std::size_t parent, Text key, Text text);

  // The index of the node of a key, or NoParent.
  [[nodiscard]] std::size_t IndexOf(TextView key) const;

  std::vector<TreeNode> nodes_;
  // Leaves are not indexed: their keys are numbers of the table, each there once.
  std::unordered_map<Text, std::size_t> groups_;
};

}  // namespace talvor
