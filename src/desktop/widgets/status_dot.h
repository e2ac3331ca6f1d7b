#pragma once

#include <QIcon>

#include "base/text.h"
#include "desktop/widgets/theme.h"

namespace talvor {

// The dot of a status, its family in shape and colour; a status of no list takes its family by its
// words. No picture for an empty text.
[[nodiscard]] QIcon StatusDot(const Theme& theme, TextView status);

}  // namespace talvor
