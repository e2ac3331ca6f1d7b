// The head of an old CV, pasted as one block, taken apart into the identity fields.
#pragma once

#include <functional>

#include "cv/cv_document.h"

namespace talvor {

// Splits `Identite` (lines parted by CR LF) into first name, name, address, postcode, town, telephones,
// mail, age and birth date by the shape of each line, and strips the block itself of its labels. A
// field that no line fills keeps its text; a later line overwrites an earlier one. `birthDateChanged`,
// if any, is called after each change of `DateNaissance`, in the midst of the lines. False when the
// block is blank: nothing has changed then.
bool ParseIdentity(CvDocument& cv, const std::function<void()>& birthDateChanged = {});

}  // namespace talvor
