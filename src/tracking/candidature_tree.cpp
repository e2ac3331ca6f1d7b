#include "tracking/candidature_tree.h"

#include <utility>

#include "base/fonctionnel.h"

namespace talvor {
namespace {

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

Text LabelText(const RowView& row, Tri tri) {
  switch (tri) {
    case Tri::Societes:
      return row.Value(Column::Societe);
    case Tri::Dates:
      return u"Date : " + row.Value(Column::Datediffussion);
    case Tri::Statuts:
      return u"Candidatures " + ReplaceAll(LowerCase(row.Value(Column::Statut)), u"emise", u"émises");
    case Tri::Origine:
      break;
  }
  return u"Origine : " + row.Value(Column::Origine);
}

}  // namespace

Text GroupLabel(const RowView& row, Tri tri) {
  Text label = LabelText(row, tri);
  // The key of a node must not be a number; a name that begins with 0 and a letter has value 0.
  if (ValeurNumerique(label) > 0) label.insert(0, u"Valeur ");
  return label;
}

CandidatureTree::Built CandidatureTree::Build(Database& database, Tri tri) {
  Built built;
  Text previous;
  try {
    database.WalkRows(OrderOf(tri), [&](const RowView& row) {
      Text label = GroupLabel(row, tri);
      // Labels are compared with the row before only; a label that comes back finds its first group.
      if (label != previous) {
        built.tree.AddGroup(label);
        previous = label;
      }
      built.tree.AddLeaf(label, u"s" + row.Value(Column::Num),
                         row.Value(Column::Datediffussion) + u" " + row.Value(Column::Intitule) + u", " +
                             row.Value(Column::Societe));
    });
  } catch (const StoreError&) {
    built.complete = false;
  }
  return built;
}

const TreeNode* CandidatureTree::Find(TextView key) const {
  const auto found = indexOfKey_.find(Text{key});
  return found == indexOfKey_.end() ? nullptr : &nodes_[found->second];
}

bool CandidatureTree::Add(TreeNode node) {
  if (!indexOfKey_.try_emplace(node.key, nodes_.size()).second) return false;
  nodes_.push_back(std::move(node));
  return true;
}

bool CandidatureTree::AddGroup(const Text& label) { return Add({label, label, TreeNode::NoParent, 0}); }

bool CandidatureTree::AddLeaf(const Text& label, Text key, Text text) {
  const auto group = indexOfKey_.find(label);
  if (group == indexOfKey_.end()) return false;
  const std::size_t parent = group->second;
  if (!Add({std::move(key), std::move(text), parent, 0})) return false;
  ++nodes_[parent].childCount;
  return true;
}

}  // namespace talvor
