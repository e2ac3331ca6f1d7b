// The splash `Depart` with its shadow, whose load starts the around.
#pragma once

#include <functional>

#include "desktop/desks/desk.h"
#include "shell/depart.h"

namespace talvor {

class SplashDesk : public Desk {
 public:
  explicit SplashDesk(const DeskSurroundings& around);

  // Plays the splash. `showMain` loads and shows the main window, false ends the program; `maximise` comes
  // once it stands. False when the program is to end.
  [[nodiscard]] bool Play(const std::function<bool()>& showMain, const std::function<void()>& maximise);

 private:
  QWidget* MakeSplash();
  QWidget* MakeShadow() const;
  void Refresh();

  DeskSurroundings around_;
  Depart depart_;
};

}  // namespace talvor
