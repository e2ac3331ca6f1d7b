// How a step that may fail tells so: with a cause in French, which the caller may show to the user.
#pragma once

#include <optional>
#include <system_error>
#include <utility>

#include "base/text.h"

namespace talvor {

// Why a step failed.
class Failure {
 public:
  // What the system says; its cause is told in the words of CauseOf («l’accès est refusé»).
  Failure(std::error_code code) : code_(code) {}
  Failure(std::errc condition) : code_(std::make_error_code(condition)) {}
  // A cause that the step tells in words of its own.
  explicit Failure(Text cause) : words_(std::move(cause)) {}

  [[nodiscard]] Text Cause() const;
  // The condition, for a caller that goes on differently; none where the step has words of its own.
  [[nodiscard]] std::error_code Code() const noexcept { return code_; }

 private:
  std::error_code code_;
  Text words_;
};

// What a step answers: a value, or why there is none.
template <class Value = void>
class [[nodiscard]] Result {
 public:
  Result(Value value) : value_(std::move(value)) {}
  Result(Failure failure) : failure_(std::move(failure)) {}

  [[nodiscard]] bool Failed() const noexcept { return !value_; }
  explicit operator bool() const noexcept { return value_.has_value(); }

  // Only of a step that has not failed.
  [[nodiscard]] Value& operator*() & { return *value_; }
  [[nodiscard]] const Value& operator*() const& { return *value_; }
  [[nodiscard]] Value&& operator*() && { return *std::move(value_); }
  [[nodiscard]] const Value* operator->() const { return &*value_; }
  // The value, or the given one in its place.
  template <class Other>
  [[nodiscard]] Value value_or(Other&& other) && {
    return std::move(value_).value_or(std::forward<Other>(other));
  }

  // Only of a step that has failed.
  [[nodiscard]] const Failure& Why() const { return *failure_; }

  // Two results by their values; two that failed are equal.
  friend bool operator==(const Result& a, const Result& b) { return a.value_ == b.value_; }
  template <class Other>
  friend bool operator==(const Result& result, const Other& value) {
    return result.value_ == value;
  }

 private:
  std::optional<Value> value_;
  std::optional<Failure> failure_;
};

// A step that gives nothing back. It has no truth of its own, so that nobody reads it the wrong way round.
template <>
class [[nodiscard]] Result<void> {
 public:
  Result() = default;  // the step has worked
  Result(std::error_code code) {
    if (code) failure_ = code;
  }
  Result(Failure failure) : failure_(std::move(failure)) {}

  [[nodiscard]] bool Failed() const noexcept { return failure_.has_value(); }
  // Only of a step that has failed.
  [[nodiscard]] const Failure& Why() const { return *failure_; }
  // None of a step that has worked.
  [[nodiscard]] std::error_code Code() const { return failure_ ? failure_->Code() : std::error_code{}; }

 private:
  std::optional<Failure> failure_;
};

}  // namespace talvor
