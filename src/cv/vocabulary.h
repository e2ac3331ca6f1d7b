// The English output of a CV.
#pragma once

#include "base/text.h"

namespace talvor {

// The text with every French word of the vocabulary in English: markup and the user's own words too,
// inside words too, exact in case.
[[nodiscard]] Text TraduireCV(TextView texte);

}  // namespace talvor
