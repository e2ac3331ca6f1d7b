#include "desktop/candidatures/candidature_tree_model.h"

#include "desktop/widgets/text_edge.h"

namespace talvor {

CandidatureTreeModel::CandidatureTreeModel(const CandidatureTree& tree, QObject* parent)
    : QAbstractItemModel(parent), tree_(tree) {
  Reset();
}

void CandidatureTreeModel::Reset() {
  beginResetModel();
  const auto& nodes = tree_.Nodes();
  groups_.clear();
  leaves_.clear();
  rowOfNode_.assign(nodes.size(), 0);
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (nodes[i].parent == TreeNode::NoParent) {
      rowOfNode_[i] = static_cast<int>(groups_.size());
      groups_.push_back(i);
      leaves_.emplace_back().reserve(nodes[i].childCount);
    } else {
      auto& siblings = leaves_[static_cast<std::size_t>(rowOfNode_[nodes[i].parent])];
      rowOfNode_[i] = static_cast<int>(siblings.size());
      siblings.push_back(i);
    }
  }
  endResetModel();
}

QModelIndex CandidatureTreeModel::At(std::size_t node) const {
  return createIndex(rowOfNode_[node], 0, static_cast<quintptr>(node));
}

QModelIndex CandidatureTreeModel::IndexOf(TextView key) const {
  const TreeNode* node = tree_.Find(key);
  return node == nullptr ? QModelIndex() : At(static_cast<std::size_t>(node - tree_.Nodes().data()));
}

QModelIndex CandidatureTreeModel::index(int row, int column, const QModelIndex& parent) const {
  if (row < 0 || column != 0 || row >= rowCount(parent)) return {};
  const auto at = static_cast<std::size_t>(row);
  return At(parent.isValid() ? leaves_[static_cast<std::size_t>(parent.row())][at] : groups_[at]);
}

QModelIndex CandidatureTreeModel::parent(const QModelIndex& child) const {
  if (!child.isValid()) return {};
  const std::size_t above = tree_.Nodes()[static_cast<std::size_t>(child.internalId())].parent;
  return above == TreeNode::NoParent ? QModelIndex() : At(above);
}

int CandidatureTreeModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(groups_.size());
  const TreeNode& node = tree_.Nodes()[static_cast<std::size_t>(parent.internalId())];
  return node.parent == TreeNode::NoParent ? static_cast<int>(node.childCount) : 0;
}

int CandidatureTreeModel::columnCount(const QModelIndex&) const { return 1; }

QVariant CandidatureTreeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const TreeNode& node = tree_.Nodes()[static_cast<std::size_t>(index.internalId())];
  switch (role) {
    case Qt::DisplayRole:
      return ToQt(node.text);
    case Qt::ToolTipRole:
      return ToolTipText(node.text);
    case KeyRole:
      return ToQt(node.key);
    case ChildCountRole:
      return static_cast<int>(node.childCount);
    default:
      return {};
  }
}

}  // namespace talvor
