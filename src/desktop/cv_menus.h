// The menus of the editor of CVs, by the names of their items.
#pragma once

#include <QMenu>
#include <QPointer>
#include <functional>
#include <memory>

#include "desktop/theme.h"
#include "platform/menus.h"

namespace talvor {

class CvMenus : public Menus {
 public:
  explicit CvMenus(const Theme& theme);

  // Called with the name of the item that the user has chosen.
  std::function<void(TextView item)> OnChosen;
  // The widget below which the next menu opens.
  void SetAnchor(QWidget* anchor) { anchor_ = anchor; }
  [[nodiscard]] QMenu* Menu(TextView menu) const;

  // The menu stays open when the call returns.
  void Open(TextView menu) override;
  void Enable(TextView item, bool enabled) override;
  void Check(TextView item, bool checked) override;

 private:
  void MakeMenus();
  QMenu* AddMenu(const char16_t* name);
  QAction* AddItem(QMenu* menu, const char16_t* name, const QString& caption, const QString& icon = {});

  const Theme& theme_;
  QObject owner_;  // ends the connections with the menus
  std::vector<std::unique_ptr<QMenu>> menus_;
  QPointer<QWidget> anchor_;
};

}  // namespace talvor
