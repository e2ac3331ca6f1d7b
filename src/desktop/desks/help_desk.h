// What the program says of itself: the hint `Guide`, the user's guide and the box about the program.
#pragma once

#include "desktop/desks/desk.h"
#include "shell/guide.h"

namespace talvor {

class HelpDesk : public Desk {
 public:
  explicit HelpDesk(const DeskSurroundings& around);

 private:
  QWidget* MakeHint(QWidget* parent);
  QWidget* MakeUserGuide(QWidget* parent);
  QWidget* MakeAbout(QWidget* parent);

  DeskSurroundings around_;
  Guide guide_;
};

}  // namespace talvor
