// `Guide`, the hint that fades in beside the zone it speaks of, holds, and fades out.
#pragma once

#include <functional>

#include "platform/shell.h"
#include "workspace/principale.h"

namespace talvor {

class Guide {
 public:
  // Letters and descriptions stand at the bottom left; all else is told under the header.
  enum class Place { BottomLeft, UnderHeader };
  static constexpr int MaxOpacity = 255;

  Guide(const Principale& principale, Shell& shell);

  Text Hint;
  int Opacity = 0;  // 0 to MaxOpacity
  Place place = Place::UnderHeader;

  // Called at each change of what is shown.
  std::function<void()> OnChange;

  // Shows `InfoGuide` for its time, about six and a half seconds in which events run, when one of the
  // forms that it speaks of is there; ends early with the main window.
  void Charger();

 private:
  void Show(int opacity);

  const Principale& principale_;
  Shell& shell_;
};

}  // namespace talvor
