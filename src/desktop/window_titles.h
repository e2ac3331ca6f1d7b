#pragma once

#include <vector>

#include "base/text.h"

namespace talvor {

// The titles of the windows that the X server's window manager lists, those without a title left out.
// Empty without an X server.
[[nodiscard]] std::vector<Text> ReadWindowTitles();

}  // namespace talvor
