// The tree of the candidatures as a Qt model.
#pragma once

#include <QAbstractItemModel>
#include <vector>

#include "tracking/candidature_tree.h"

namespace talvor {

// Reads the tree of the form in place. Between a build of the tree and the next Reset the model must
// not be asked.
class CandidatureTreeModel : public QAbstractItemModel {
 public:
  enum Roles { KeyRole = Qt::UserRole, ChildCountRole };

  explicit CandidatureTreeModel(const CandidatureTree& tree, QObject* parent = nullptr);

  // Takes the tree over after it has been built again.
  void Reset();
  // The index of the node of that key, invalid when there is none.
  [[nodiscard]] QModelIndex IndexOf(TextView key) const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 private:
  [[nodiscard]] QModelIndex At(std::size_t node) const;

  const CandidatureTree& tree_;
  std::vector<std::size_t> groups_;               // nodes of the groups, in order
  std::vector<std::vector<std::size_t>> leaves_;  // of each group, by its row
  std::vector<int> rowOfNode_;                    // row of each node under its parent
};

}  // namespace talvor
