#include "tracking/candidature_tree.h"

#include <algorithm>
#include <utility>

#include "base/fonctionnel.h"

namespace talvor {
namespace {

// The key of a leaf is this and the number of its row.
constexpr char16_t LeafKeyMark = u's';

RowOrder OrderOf(Tri tri) {
  switch (tri) {
    case Tri::Societes:
      return RowOrder::Company;
    case Tri::Dates:
      return RowOrder::Date;
    case Tri::Statuts:
      return RowOrder::Status;
    case Tri::Origine:
      break;
  }
  return RowOrder::Origin;
}

Column ColumnOf(Tri tri) {
  switch (tri) {
    case Tri::Societes:
      return &Candidature::Societe;
    case Tri::Dates:
      return &Candidature::DateDiffusion;
    case Tri::Statuts:
      return &Candidature::Statut;
    case Tri::Origine:
      break;
  }
  return &Candidature::Origine;
}

// The label of the group of the rows with that value.
Text GroupLabel(Tri tri, const Text& value) {
  Text label;
  switch (tri) {
    case Tri::Societes:
      label = value;
      break;
    case Tri::Dates:
      label = u"Date : " + value;
      break;
    case Tri::Statuts:
      label = u"Candidatures " + ReplaceAll(LowerCase(value), u"emise", u"émises");
      break;
    case Tri::Origine:
      label = u"Origine : " + value;
      break;
  }
  // The key of a node must not be a number; a name that begins with 0 and a letter has value 0.
  if (ValeurNumerique(label) > 0) label.insert(0, u"Valeur ");
  return label;
}

bool IsLeafKey(TextView key) {
  return key.starts_with(LeafKeyMark) && key.find_first_not_of(u"0123456789", 1) == TextView::npos;
}

Text LeafText(const RowView& row) {
  Text text = row.Value(&Candidature::DateDiffusion);
  text.append(u" ")
      .append(row.Value(&Candidature::Intitule))
      .append(u", ")
      .append(row.Value(&Candidature::Societe));
  return text;
}

}  // namespace

CandidatureTree CandidatureTree::Build(Database& database, Tri tri) {
  CandidatureTree tree;
  std::optional<Text> value;  // of the row before, so that a label is made once for its run of rows
  Text label;
  std::size_t parent = TreeNode::NoParent;
  try {
    database.WalkRows(OrderOf(tri), [&](const RowView& row) {
      Text current = row.Value(ColumnOf(tri));
      if (!value || *value != current) {
        const Text previous = std::exchange(label, GroupLabel(tri, current));
        // Labels are compared with the row before only; a label that comes back finds its first group.
        if (label != previous) tree.AddGroup(label);
        parent = tree.IndexOf(label);
        value = std::move(current);
      }
      tree.AddLeaf(parent, LeafKeyMark + row.Value(&Candidature::Num), LeafText(row));
    });
  } catch (const StoreError&) {
    // The list shows what could be read.
  }
  return tree;
}

std::size_t CandidatureTree::IndexOf(TextView key) const {
  const auto group = groups_.find(Text{key});
  if (group != groups_.end()) return group->second;
  if (!IsLeafKey(key)) return TreeNode::NoParent;
  const auto leaf =
      std::find_if(nodes_.begin(), nodes_.end(), [&](const TreeNode& node) { return node.key == key; });
  return leaf == nodes_.end() ? TreeNode::NoParent : static_cast<std::size_t>(leaf - nodes_.begin());
}

const TreeNode* CandidatureTree::Find(TextView key) const {
  const std::size_t index = IndexOf(key);
  return index == TreeNode::NoParent ? nullptr : &nodes_[index];
}

void CandidatureTree::AddGroup(const Text& label) {
  if (IndexOf(label) != TreeNode::NoParent) return;
  groups_.emplace(label, nodes_.size());
  nodes_.push_back({label, label, TreeNode::NoParent, 0});
}

void CandidatureTree::AddLeaf(std::size_t parent, Text key, Text text) {
  if (parent == TreeNode::NoParent || groups_.contains(key)) return;
  nodes_.push_back({std::move(key), std::move(text), parent, 0});
  ++nodes_[parent].childCount;
}

}  // namespace talvor
