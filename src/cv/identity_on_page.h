#pragma once

#include "cv/cv_document.h"

namespace talvor {

// The text of a field outside the long paragraphs as the page shows it: with its words («Née le »,
// « enfants») and with "<br>" for each CR LF.
[[nodiscard]] Text IdentityOnPage(const CvDocument& cv, TextView name, TextView value);

}  // namespace talvor
