#pragma once

#include "base/text.h"

namespace talvor {

// Shortens a text for its column: one of over 40 characters is cut at the last blank up to position 35
// (1-based), or at position 3 without one, and loses a dangling "de", "du", "en" and "et", each once.
// The result is trimmed of blanks.
[[nodiscard]] Text CouperTexte(TextView text);

}  // namespace talvor
