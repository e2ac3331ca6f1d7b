#pragma once

namespace talvor {

// Forms tell lengths on the screen in twips: the width of the editor, the splash, the check of the screen.
inline constexpr int TwipsPerPixel = 15;

}  // namespace talvor
