// The e-mail address around the first "@", with the company and the contact that it names.

#include "ads/rules.h"
#include "base/code_page.h"
#include "base/fonctionnel.h"

namespace talvor::ads {
namespace {

// A domain of these hosts names no company. It is looked up as a part of this text.
constexpr TextView MailHosts = u" yahoo orange wanadoo hotmail free tiscali ";

// From the hyphen on, every character of the code page is part of an address: letters, digits, ".",
// "_", "<", ":" and accented letters, but no blank, comma, "+" or quote.
constexpr int LeastCode = '-';

bool IsPartOfAddress(char16_t c) { return CharacterCode(c) >= LeastCode; }

// Takes the address around the "@" at a 0-based position. The characters are tested before the bounds:
// an address that reaches the first character of the text, or an "@" as its last one, is a failure
// that leaves what was read.
void ReadAddress(TextView texte, std::size_t at, Text& email) {
  std::size_t first = at;
  while (first > 0 && IsPartOfAddress(texte[first - 1])) --first;
  email = texte.substr(first, at + 1 - first);
  if (first == 0 || at + 1 == texte.size()) throw AnalysisFailure{};

  // The very last character of the text never joins the address.
  std::size_t end = at + 1;
  while (IsPartOfAddress(texte[end]) && end + 1 < texte.size()) ++end;
  email = texte.substr(first, end - first);
}

void NameCompany(TextView email, Text& company) {
  company = email.substr(email.find(u'@') + 1);
  const auto dot = company.find(u'.');
  if (dot == Text::npos) throw AnalysisFailure{};  // the whole domain stands
  company = UpperCase(TextView{company}.substr(0, dot));
  if (Contains(MailHosts, LowerCase(company))) company.clear();
}

void NameContact(TextView email, Text& contact) {
  const TextView name = email.substr(0, email.find(u'@'));
  // A role address names nobody: one blank, which the finishing takes for a name all the same.
  contact = Contains(name, u".") ? NomPropre(ReplaceAll(name, u".", u" ")) : Text{u" "};
}

}  // namespace

void FindEmail(TextView texte, AdFields& record) {
  const auto at = Find(texte, u"@");
  if (at == TextView::npos || !record.Email.empty()) return;
  ReadAddress(texte, at, record.Email);
  if (!Contains(record.Email, u".")) {
    record.Email.clear();
    return;
  }
  NameCompany(record.Email, record.Societe);
  NameContact(record.Email, record.NomContact);
}

}  // namespace talvor::ads
