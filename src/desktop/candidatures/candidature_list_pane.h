// The left pane of `FormCand`: sort options, tree, delete all, search panel.
#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "desktop/candidatures/candidature_tree_view.h"

class QButtonGroup;
class QPushButton;

namespace talvor {

class CandidatureListPane : public QWidget {
 public:
  CandidatureListPane(const CandidatureTree& tree, const Theme& theme, QWidget* parent);

  std::function<void(std::size_t)> OnTri;
  std::function<void()> OnToutSupprimer;
  std::function<void(std::size_t)> OnRechercher;

  [[nodiscard]] CandidatureTreeView& Tree() { return *tree_; }
  // Marks the sort option; none for a negative index.
  void ShowTri(int index);

 private:
  QWidget* MakeSegments();
  QWidget* MakeFoot();

  const Theme& theme_;
  QButtonGroup* tri_;
  CandidatureTreeView* tree_;
};

}  // namespace talvor
