// The keywords, and the rule that each one fires. Words are compared whole; all of a job board's French
// labels that the analyser knows stand here.

#include <array>
#include <cstdint>

#include "ads/rules.h"

namespace talvor::ads {
namespace {

struct Trigger {
  TextView word;
  TextView before;  // the word in front that it needs, empty for any
  void (*rule)(Run&, Index);
};

constexpr std::array<Trigger, 25> Triggers{{
    {u"SOCIETE", u"", CompanyRule},
    {u"ENTREPRISE", u"", CompanyRule},
    {u"A", u"CANDIDATURE", CompanyRule},
    {u"LIEU", u"", PlaceRule},
    {u"LOCALISATION", u"", PlaceRule},
    {u"A", u"BASE", PlaceRule},
    {u"SALAIRE", u"", SalaryRule},
    {u"SALARY", u"", SalaryRule},
    {u"REMUNERATION", u"", SalaryRule},
    {u"TAUX", u"", SalaryRule},
    {u"CONTACT", u"", ContactRule},
    {u"MR", u"", ContactRule},
    {u"MONSIEUR", u"", ContactRule},
    {u"MLE", u"", ContactRule},
    {u"M", u"", ContactRule},
    {u"MME", u"", ContactRule},
    {u"MLLE", u"", ContactRule},
    {u"A", u"TRANSMISE", ContactRule},
    {u"PH", u"", TelephoneRule},
    {u"TEL", u"", TelephoneRule},
    {u"TELEPHONE", u"", TelephoneRule},
    {u"ENVISAGEE", u"DUREE", DurationRule},
    {u"REFERENCE", u"", ReferenceRule},
    {u"OFFRE", u"D", ReferenceRule},
    {u"REF", u"", ReferenceRule},
}};

// Told by its ending, so that «PREFERENCE» counts as well.
constexpr TextView ReferenceEnding = u"REFERENCE";

// For each length, the first letters of the keywords that have it: what sorts out most words at once.
constexpr std::size_t LongestKeyword = 12;

constexpr std::uint32_t LetterBit(char16_t c) { return c >= u'A' && c <= u'Z' ? 1u << (c - u'A') : 0u; }

constexpr std::array<std::uint32_t, LongestKeyword + 1> FirstLetters = [] {
  std::array<std::uint32_t, LongestKeyword + 1> letters{};
  for (const Trigger& trigger : Triggers) letters.at(trigger.word.size()) |= LetterBit(trigger.word.front());
  return letters;
}();

bool MayBeKeyword(TextView word) {
  return !word.empty() && word.size() <= LongestKeyword &&
         (FirstLetters[word.size()] & LetterBit(word.front())) != 0;
}

}  // namespace

void FireTrigger(Run& run, Index I) {
  const TextView word = run.words(I);
  if (MayBeKeyword(word)) {
    for (const Trigger& trigger : Triggers)
      if (word == trigger.word && (trigger.before.empty() || run.words(I - 1) == trigger.before))
        return trigger.rule(run, I);
  }
  if (word.size() > ReferenceEnding.size() && word.ends_with(ReferenceEnding)) ReferenceRule(run, I);
}

}  // namespace talvor::ads
