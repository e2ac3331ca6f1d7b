#include "tracking/ageing.h"

namespace talvor {

// Both statuses are words of the program; nothing of the user's is pasted here.
std::string AgeingStatement(const AgeingStep& step) {
  return "update candidatures set statut = '" + ToUtf8(step.to) + "' where statut = '" + ToUtf8(step.from) +
         "' and " + step.condition;
}

}  // namespace talvor
