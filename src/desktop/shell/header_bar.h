// The header of the main window: logo, "Menu", the eleven slots in three trays, `Information`, print,
// "Sauver".
#pragma once

#include <QFrame>
#include <QTimer>
#include <array>
#include <functional>

#include "desktop/widgets/icon_tile.h"
#include "shell/main_menu.h"

class QLabel;
class QToolButton;

namespace talvor {

class HeaderBar : public QFrame {
 public:
  HeaderBar(Principale& principale, const Theme& theme, QWidget* parent);

  std::function<void()> OnLogo, OnMenu, OnPrint, OnSave;
  // A click, which waits for the second one of a double click; a double click; F2; Del.
  std::function<void(std::size_t slot)> OnSlotClick, OnSlotOpen, OnSlotRename, OnSlotDelete;
  // The name of the file that the form at the front shows, empty without one.
  std::function<Text(TextView page)> askOpenFile;

  // Shows the slots as they stand. `page` is the form at the front.
  void Refresh(TextView page);
  void ClearInformation() { ShowInformation({}); }
  [[nodiscard]] IconTile& Slot(std::size_t index) { return *slots_[index]; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* MakeTray(std::size_t from, std::size_t to, const QString& name);
  IconTile* MakeButton(const QString& icon, const QString& caption, const QString& name,
                       std::function<void()> HeaderBar::* click);
  void MakeSlot(std::size_t index, QWidget* tray);
  void ConnectSlot(std::size_t index, IconTile& slot);
  [[nodiscard]] bool IsCurrent(std::size_t index, TextView page) const;
  void MakeLogo();
  void HoverSlot(std::size_t index, bool over);
  void MoveFocus(std::size_t index, int step);
  void ShowInformation(TextView text);

  Principale& principale_;
  const Theme& theme_;
  std::array<IconTile*, 11> slots_{};
  std::array<std::size_t, 11> firstOfTray_{};
  std::array<std::size_t, 11> endOfTray_{};
  QToolButton* logo_ = nullptr;
  QLabel* information_ = nullptr;
  Text page_;
  QTimer doubleClick_;  // runs after a click that may become a double one
  std::size_t clicked_ = 0;
};

}  // namespace talvor
