#pragma once

#include "base/text.h"

namespace talvor {

inline constexpr TextView BlankPage = u"about:blank";

// The embedded browser of a form.
class Browser {
 public:
  virtual ~Browser() = default;
  virtual void Navigate(TextView address) = 0;
  // The address of the page on show, "about:blank" before the first one.
  [[nodiscard]] virtual Text LocationURL() const = 0;
};

}  // namespace talvor
