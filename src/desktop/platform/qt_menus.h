// Menus of the program as popups, by the names of their items: the real part of `Menus`.
#pragma once

#include <QMenu>
#include <QPointer>
#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

#include "app/menu_trees.h"
#include "desktop/widgets/theme.h"

namespace talvor {

class QtMenus : public Menus {
 public:
  // Makes the menus of those names.
  QtMenus(const Theme& theme, std::initializer_list<TextView> names);

  // Called with the name of the item that the user has chosen.
  std::function<void(TextView item)> OnChosen;
  // The widget below which the next menu opens.
  void SetAnchor(QWidget* anchor) { anchor_ = anchor; }
  [[nodiscard]] QMenu* Menu(TextView menu) const;

  // The menu stays open when the call returns.
  void Open(TextView menu) override;
  void OpenAt(TextView menu, QPoint place);
  void Enable(TextView item, bool enabled) override;
  void Check(TextView item, bool checked) override;

 private:
  void MakeMenu(const MenuTree& tree);
  void AddItem(QMenu& menu, const MenuItem& item);
  void Pick(const std::function<void(QAction&)>& action, TextView item) const;

  const Theme& theme_;
  QObject owner_;  // ends the connections with the menus
  std::vector<std::unique_ptr<QMenu>> menus_;
  QPointer<QWidget> anchor_;
};

}  // namespace talvor
