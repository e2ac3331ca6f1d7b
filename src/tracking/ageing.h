// The ageing of statuses: what becomes of a candidature when its time has passed without news.
#pragma once

#include <array>
#include <string>

#include "tracking/status_lists.h"

namespace talvor {

// Rows with the status `from` get the status `to` once the condition, in SQL, holds. date() is today;
// a row without the date in question never ages.
struct AgeingStep {
  TextView from;
  TextView to;
  const char* condition;
};

// In this order, so that an interview long past moves through the second and the third at one start.
inline constexpr std::array<AgeingStep, 3> AgeingSteps{{
    {ListeStatuts[1], ListeStatuts[2], "(DateEnvoi + 30) < date()"},
    {ListeStatuts[5], ListeStatuts[6], "(Daterdv) < date()"},
    {ListeStatuts[6], SansReponseApresEntretien, "(Daterdv + 30) < date()"},
}};

// The statement that does a step.
[[nodiscard]] std::string AgeingStatement(const AgeingStep& step);

}  // namespace talvor
