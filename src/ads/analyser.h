// The analyser of advertisements: a chain of cuts on the text, one normal form of it, and one walk over
// its words in which keyword rules each read a phrase to the end of its line. It asks nothing and
// reports nothing: a poor advertisement yields a poor record.
#pragma once

#include "ads/ad_fields.h"
#include "ads/end_markers.h"
#include "base/day.h"
#include "platform/blank_page.h"

namespace talvor {

struct AdContext {
  // End markers, CR LF between rows; a row whose value is 1 is in force.
  Text TermFin{TermFinDelivered};
  // The address that the browser shows.
  Text address{BlankPage};
  Day today;
};

// Fills the record from the text of an advertisement, whose lines end in CR LF. A rule guarded by an
// empty field leaves what stands there. A failure inside the run (a reading past the last word, a cut
// at a sign that is missing) ends it silently, and the record keeps what it holds at that moment. On
// return `texte` is as the last stage that was reached has left it: cut, or its normal form.
void AnalyserAnnonce(Text& texte, AdFields& record, const AdContext& context);

}  // namespace talvor
