#pragma once

#include <vector>

#include "base/text.h"

struct xcb_connection_t;

namespace talvor {

// The titles of the windows that the X server's window manager lists, those without a title left out.
// Empty without an X server.
[[nodiscard]] std::vector<Text> ReadWindowTitles();

// The same from a given X server, the window in front first; null gives none.
[[nodiscard]] std::vector<Text> ReadWindowTitles(xcb_connection_t* server);

}  // namespace talvor
