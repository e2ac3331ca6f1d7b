// The sections of a page between their boundary marks, P01 to P07.
//
// A mark counts at its first occurrence, be it in the text of a field. Where a boundary is missing or
// stands out of order, nothing is removed or moved.
#pragma once

#include "cv/cv_document.h"

namespace talvor {

// Cuts the sections whose field is empty; their marks stay. Only in a page that holds P03 and P07.
void RemoveEmptySections(Text& page, const CvDocument& cv);

// Puts experience and skills (P03 to P05) in front of studies and further training (P01 to P03).
void PutExperienceFirst(Text& page);

// Removes every occurrence of the seven marks.
void RemoveSectionMarks(Text& page);

}  // namespace talvor
