#pragma once

#include "base/text.h"

namespace talvor {

// The menus of the main window and their items, by name.
class Menus {
 public:
  virtual ~Menus() = default;
  // Opens a menu below the entry that was clicked.
  virtual void Open(TextView menu) = 0;
  virtual void Enable(TextView item, bool enabled) = 0;
  virtual void Check(TextView item, bool checked) = 0;
};

}  // namespace talvor
