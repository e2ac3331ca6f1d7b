#pragma once

#include "base/text.h"

namespace talvor {

// The address of a browser that shows nothing.
inline constexpr TextView BlankPage = u"about:blank";

}  // namespace talvor
