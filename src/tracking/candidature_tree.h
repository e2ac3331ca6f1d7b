// The list of all candidatures as a tree of two levels: groups, and a leaf for each row.
#pragma once

#include <array>
#include <optional>
#include <unordered_map>
#include <vector>

#include "tracking/store.h"

namespace talvor {

// The sort options `Tri`, by index.
enum class Tri { Societes, Dates, Statuts, Origine };

inline constexpr std::array<TextView, 4> TriCaptions{u"Sociétés", u"Dates", u"Statuts", u"Origine"};

struct TreeNode {
  static constexpr std::size_t NoParent = static_cast<std::size_t>(-1);

  Text key;
  Text text;
  std::size_t parent = NoParent;  // index of the parent node; a group has none
  std::size_t childCount = 0;
};

class CandidatureTree {
 public:
  // Rows by the order of the option, grouped by label. What an engine failure interrupts stands as
  // far as it was built: `complete` is false then.
  struct Built;
  [[nodiscard]] static Built Build(Database& database, Tri tri);

  // Groups in order, each with its leaves somewhere behind it.
  [[nodiscard]] const std::vector<TreeNode>& Nodes() const noexcept { return nodes_; }
  // The node of a key, or null.
  [[nodiscard]] const TreeNode* Find(TextView key) const;
  [[nodiscard]] bool Empty() const noexcept { return nodes_.empty(); }

  // Keys are unique and tell case apart: a second group of one label is not added, nor is a leaf under
  // a key that is not there. False then.
  bool AddGroup(const Text& label);
  bool AddLeaf(const Text& label, Text key, Text text);

 private:
  bool Add(TreeNode node);

  std::vector<TreeNode> nodes_;
  std::unordered_map<Text, std::size_t> indexOfKey_;
};

struct CandidatureTree::Built {
  CandidatureTree tree;
  bool complete = true;
};

// The label of the group that a row belongs to.
[[nodiscard]] Text GroupLabel(const RowView& row, Tri tri);

}  // namespace talvor
