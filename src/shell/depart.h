// `Depart`, the splash: the first form, whose load starts the program.
#pragma once

#include <functional>

#include "platform/dialogs.h"
#include "platform/shell.h"
#include "platform/twips.h"

namespace talvor {

// A screen as the windows see it, in units of the layout: its pixels divided by the system's zoom.
struct ScreenSize {
  int width = 0;
  int height = 0;
  double zoom = 1;  // 1.5 at 150 %
};

// What the smallest main window needs, with its frame, in units of the layout.
inline constexpr ScreenSize RoomForPrincipale{860, 480};

// Whether the screen is too small for the warning to be spared. Its least definition is told in pixels, so
// the pixels of the screen are counted: a Full-HD screen stays one at 125 to 200 %, where what does not fit
// scrolls. Where the zoom leaves too little for the main window itself, the units that are left are counted.
[[nodiscard]] bool IsTooSmall(const ScreenSize& screen);

class Depart {
 public:
  Depart(Dialogs& dialogs, Shell& shell);

  int Opacity = 0;        // of the splash, 0 to 255
  int ShadowOpacity = 1;  // of its shadow `Ombre`
  int PictureOffset = 0;  // twips that the picture has slid to the left

  // What the load needs of the floors around it. `showPrincipale` loads the model of the main window
  // and shows it; false ends the program at once.
  struct Steps {
    std::function<void()> prepareFolder;
    std::function<bool()> showPrincipale;
    std::function<int()> principaleWidth;  // pixels
    std::function<void()> maximise;
    std::function<void()> onChange;  // the splash is to be drawn again
  };

  // Warns on a small screen, prepares the data folder, plays the splash, shows the main window and the
  // home panel. False when the program is to end.
  [[nodiscard]] bool Charger(ScreenSize screen, const Steps& steps);

  // A key or a click: what is left of the splash's waits is not waited for.
  void Shorten() { shortened_ = true; }

 private:
  void PlaySplash(const Steps& steps);
  void Wait(int milliseconds);

  Dialogs& dialogs_;
  Shell& shell_;
  bool shortened_ = false;
};

}  // namespace talvor
