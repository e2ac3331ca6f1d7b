// The contact person behind a form of address.

#include <array>

#include "ads/phrase_reader.h"
#include "ads/rules.h"
#include "base/fonctionnel.h"

namespace talvor::ads {
namespace {

// A text that holds one of these is a sentence and not a name.
constexpr std::array<TextView, 7> ContactFilter{u"CLIENT", u" DU ",   u" D ", u" UNE ",
                                                u" LES ",  u" POUR ", u" DE "};

}  // namespace

void ContactRule(Run& run, Index I) {
  // There is no guard on the field: the last trigger decides, even when it leaves the field empty.
  run.contactAt = I;
}

void ReadContact(const Run& run, Index I) {
  Text& contact = run.record.NomContact;
  contact.clear();
  // The words behind a trigger have not been cut yet when it fires. A number ends the name, so that a
  // telephone behind it stays out.
  for (Index K = ContactReader.firstK;; ++K)
    if (ReadWord(ContactReader, run.words, I, K, run.words.Uncut(I + K), contact) == Step::Stopped) break;

  contact = Normaliser(contact) + u" ";
  contact = ContainsAny(contact, ContactFilter) ? Text{} : NomPropre(contact);
}

}  // namespace talvor::ads
