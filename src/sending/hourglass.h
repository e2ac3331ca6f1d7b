#pragma once

#include <functional>

namespace talvor {

// Shows the wait cursor (true), or takes it back (false); may be left empty.
using WaitCursor = std::function<void(bool)>;

// The wait cursor for the life of the object.
class Hourglass {
 public:
  explicit Hourglass(const WaitCursor& cursor) : cursor_(cursor) {
    if (cursor_) cursor_(true);
  }
  ~Hourglass() {
    if (cursor_) cursor_(false);
  }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  const WaitCursor& cursor_;
};

}  // namespace talvor
