// The rules of the analyser, by what they find. A rule of the walk is given the word it looks at; its
// guards look at the record as it stands, so that a rule that fills a field changes those after it.
#pragma once

#include <optional>

#include "ads/ad_fields.h"
#include "ads/analyser.h"
#include "ads/words.h"

namespace talvor::ads {

// One run: what the rules share. Everything here is local to the run.
struct Run {
  AdFields& record;
  const AdContext& context;
  Words words;
  int thisYear;

  // The last trigger decides what the contact and the reference are, and nothing reads them before the
  // walk is over; so the triggers are noted here and read once, by FinishPendingReadings.
  std::optional<Index> contactAt;
  struct ReferencePhrase {
    Index I;
    Index firstK;
  };
  std::optional<ReferencePhrase> referenceAt;

  // Up to this word every company phrase is known to end as a sentence that names nobody.
  Index companySentenceAt = 0;
};

// Before the words exist: on the text with its case and punctuation, and on its normal form.
void FindEmail(TextView texte, AdFields& record);
void FindContract(TextView normalForm, AdFields& record);

// The rules of the walk on word I. A title begins at any job word.
void TitleRule(Run& run, Index I);

// Rules of words that begin with a digit.
void DateRule(Run& run, Index I);
void FiveNumbersRule(Run& run, Index I);
void PostalCodeRule(Run& run, Index I);

// Rules of keywords; the table of triggers says which word fires which one.
void CompanyRule(Run& run, Index I);
void PlaceRule(Run& run, Index I);
void SalaryRule(Run& run, Index I);
void ContactRule(Run& run, Index I);
void TelephoneRule(Run& run, Index I);
void DurationRule(Run& run, Index I);
void ReferenceRule(Run& run, Index I);

// Runs the rule that word I fires, if any.
void FireTrigger(Run& run, Index I);

// Reads what the last triggers of the contact and the reference have left to read. Never fails.
void FinishPendingReadings(Run& run);
void ReadContact(const Run& run, Index I);
void ReadReference(const Run& run, Run::ReferencePhrase phrase);

// True if a text holds a term that no company's name holds.
[[nodiscard]] bool IsCompanySentence(TextView text);

// The finishing, after the walk.
void FindCompanyInWords(Run& run);
void FindOrigin(Run& run);
void FillCompanyAndOrigin(AdFields& record);

}  // namespace talvor::ads
