// The composer: from the fields of a model to its letter, with tags left for the candidature.
#pragma once

#include "base/day.h"
#include "letters/letter_model.h"

namespace talvor {

// Replaces "(e)", "(x)" and "(se)" by what suits the first name.
[[nodiscard]] Text WithGender(TextView text, TextView prenom);

// Rebuilds `Text1`, and `Objet` for a mail; stores `Domaine` in lower case. The date is fixed in the
// text of a printed letter.
void ComposerLettre(LetterModel& model, Day today);

}  // namespace talvor
