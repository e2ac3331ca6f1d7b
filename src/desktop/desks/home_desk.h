// The home panel in the program: the form `AssistantTexte` with the figure `Assistant` on its road.
#pragma once

#include <QPointer>

#include "desktop/desks/desk.h"
#include "desktop/shell/home_window.h"
#include "shell/assistant.h"
#include "shell/home_panel.h"

namespace talvor {

class HomeDesk : public Desk {
 public:
  explicit HomeDesk(const DeskSurroundings& around);

 private:
  QWidget* MakeWindow(QWidget* parent);
  QWidget* MakeFigure(QWidget* parent);
  void ConnectCommands();

  DeskSurroundings around_;
  AssistantTexte form_;
  Assistant assistant_;
  QPointer<HomeWindow> window_;
};

}  // namespace talvor
