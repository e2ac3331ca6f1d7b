// The company behind its label, and the company that a sentence or a group's name gives away.

#include <algorithm>
#include <array>

#include "ads/phrase_reader.h"
#include "ads/rules.h"

namespace talvor::ads {
namespace {

// A text that holds one of these is a sentence of the advertisement and not a name. The blanks count;
// the two without blanks also match inside a longer word.
constexpr std::array<TextView, 10> CompanyFilter{u" DU ",  u"CLIENT", u"CONTACT", u" LE ",  u" VOTRE ",
                                                 u" VOS ", u" UNE ",  u" LES ",   u" DES ", u" L "};

// Reads the company behind word I. A phrase that has become a sentence is not read on: nothing of it
// stays, but that its line must end.
void ReadCompany(Run& run, Index I) {
  Text& company = run.record.Societe;
  for (Index K = CompanyReader.firstK;; ++K) {
    const TextView word = run.words(I + K);
    const Step step = ReadWord(CompanyReader, run.words, I, K, word, company);
    if (step == Step::Stopped) return;
    const TextView tail =
        TextView{company}.substr(company.size() - std::min(company.size(), word.size() + 2));
    if (step == Step::Took && IsCompanySentence(tail) && I + K < run.words.LastLineMark()) {
      company.clear();
      run.companySentenceAt = I + K;
      return;
    }
  }
}

}  // namespace

bool IsCompanySentence(TextView text) { return ContainsAny(text, CompanyFilter); }

void CompanyRule(Run& run, Index I) {
  const bool dateBehind = Contains(run.words(I + 1), u"/");
  // A label inside a sentence that an earlier one has read would read the rest of that sentence.
  const bool insideSentence = I + 1 < run.companySentenceAt;
  if (run.record.Societe.empty() && !dateBehind && !insideSentence) ReadCompany(run, I);
}

void FindCompanyInWords(Run& run) {
  Text& company = run.record.Societe;
  const Words& words = run.words;
  if (!company.empty() && company != u"N.C.") return;
  // The last hit stands.
  for (Index I = 1; I < words.U(); ++I) {
    // A sentence «X est …» names its subject, but «n'est» does not.
    if (words(I) == u"EST" && words(I - 1) != u"N") company = words(I - 1);
    if (words(I) == u"GROUPE") {
      const TextView second = words(I + 1);
      const TextView third = words(I + 2);
      company = u"GROUPE ";
      company.append(second).append(u" ").append(third);
    }
  }
}

}  // namespace talvor::ads
