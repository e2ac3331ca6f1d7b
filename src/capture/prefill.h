// What the fields of a web form ask for, guessed from their names.
#pragma once

#include <optional>

#include "base/text.h"
#include "workspace/principale.h"

namespace talvor {

// The values that a form is filled with: the identity of the current CV and the letter.
struct PrefillValues {
  Text email, surname, firstName, address, postalCode, town, telephone, job, letter;
};

[[nodiscard]] PrefillValues PrefillValuesOf(const Identity& identity, Text letter);

// Only so many elements of a page are looked at.
inline constexpr std::size_t PrefillElements = 1000;

// The value for an element, told by its name, or by its id when it has no name; nothing when no row of
// the table matches, and for a password whatever else its name says. Of several rows that match, the
// last one stands. The pointer looks into `values`.
[[nodiscard]] const Text* PrefillValue(const PrefillValues& values, TextView name, TextView id);

}  // namespace talvor
