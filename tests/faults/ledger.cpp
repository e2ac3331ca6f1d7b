#include "tests/faults/ledger.h"

#include "base/fonctionnel.h"

namespace talvor::faults {

void Ledger::Take(const Word& word) {
  auto& objects = word.kind == Kind::Row ? rows : word.kind == Kind::Cv ? cvs : letters;
  Versions& versions = objects[word.id];
  (word.committed != 0 ? versions.committed : versions.begun) = word.version;
}

Text Body(std::int32_t version) {
  const Text number = NumberText(version);
  constexpr std::size_t Lines = 200;
  Text body = number + u" début";
  for (std::size_t i = 0; i < Lines; ++i)
    body.append(u" ").append(number).append(u" texte d'une version entière");
  return body + u" fin " + number;
}

std::int32_t VersionOf(TextView body) {
  const auto version = static_cast<std::int32_t>(ValeurNumerique(body.substr(0, body.find(u' '))));
  return body == Body(version) ? version : 0;
}

Text CvName(std::int32_t id) { return u"Cv " + NumberText(id); }
Text LetterName(std::int32_t id) { return u"Lettre " + NumberText(id); }

}  // namespace talvor::faults
