#pragma once

namespace talvor {

// Holds a flag up for the life of an operation, whatever way that ends.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
  ~Raised() { flag_ = false; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
};

}  // namespace talvor
