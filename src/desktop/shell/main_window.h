// The window of `Principale`: header and pages.
#pragma once

#include <QMainWindow>
#include <QStackedWidget>

#include <functional>

#include "desktop/platform/qt_shell.h"
#include "desktop/shell/header_bar.h"

namespace talvor {

class MainWindow : public QMainWindow {
 public:
  MainWindow(Principale& principale, QtShell& shell, const Theme& theme);

  // The size of the first window where the screen leaves that room, never below the least.
  [[nodiscard]] static QSize FirstSizeOn(QSize available);

  // Before the window is shown: as it stood at the end of the last run. False when there was none.
  [[nodiscard]] bool RestorePlace();
  // Shows what the view models say.
  void Refresh();
  [[nodiscard]] HeaderBar& Header() { return *header_; }
  [[nodiscard]] QStackedWidget* Pages() { return pages_; }

  std::function<void()> OnClosed;
  std::function<void()> BeforeMenu;  // "Menu" has been clicked and is about to act
  // F1: the last hint again.
  std::function<void()> OnHelp;
  std::function<void()> OnUserGuide;  // Shift+F1

 protected:
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void AddShortcuts();
  void KeepSurface();
  void StepPane(int step);

  MainMenu menu_;
  HeaderBar* header_;
  QStackedWidget* pages_;
  Text page_;
};

}  // namespace talvor
