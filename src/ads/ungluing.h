#pragma once

#include "base/text.h"

namespace talvor {

// Puts a blank between a small and a capital letter without accents («MaçonLyon»), as a page's text
// often joins two elements without a gap. The walk visits as many positions as the text had characters
// at first less one, so that the blanks put in leave its last characters unvisited.
[[nodiscard]] Text DecollerMots(TextView txt);

}  // namespace talvor
