// The page of a CV: a template filled with the fields of the document.
//
// Field texts go into the page as they stand, markup included: whoever shows the page shows it with
// scripts off and without access to anything but its own folder.
#pragma once

#include "cv/cv_document.h"

namespace talvor {

// No page grows beyond this many characters: a replacement that would make it longer is not done and
// its mark stays. It bounds what a hostile file can ask for, far above any real CV.
inline constexpr std::size_t LargestPage = std::size_t{1} << 25;

enum class PhotoOnPage { None, Picture };

// The ticked levels of the nine languages, one a line, and the free remarks behind them.
[[nodiscard]] Text LanguageSummary(const CvDocument& cv);

// The template's text with fonts, sections, fields, photo, colours and language in place and without
// its boundary marks. `cv.Langues` is taken as it is: see LanguageSummary. A template without marks
// comes back with its colours and font alone changed.
[[nodiscard]] Text FillTemplate(const CvDocument& cv, Text page, PhotoOnPage photo);

}  // namespace talvor
