#include "base/result.h"

#include "base/failure_cause.h"

namespace talvor {

Text Failure::Cause() const { return words_.empty() ? CauseOf(code_) : words_; }

}  // namespace talvor
