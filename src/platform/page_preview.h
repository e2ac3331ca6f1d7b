#pragma once

#include "base/text.h"

namespace talvor {

// A page on its way to the printer: loaded unseen, then shown in a print preview.
class PagePreview {
 public:
  virtual ~PagePreview() = default;
  // Begins to load the page at an address.
  virtual void Navigate(TextView address) = 0;
  // True once the page is complete.
  [[nodiscard]] virtual bool IsComplete() const = 0;
  // Opens the preview, from which the user prints.
  virtual void Preview() = 0;
};

}  // namespace talvor
