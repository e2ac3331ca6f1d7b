#include "cv/identity_parser.h"

#include "base/fonctionnel.h"

namespace talvor {
namespace {

// A word of an address stands here between two blanks. The rule for places of work has a list of its own,
// which holds "ZI" as well: the two are not to be aligned.
constexpr TextView AddressWords =
    u" RUE AVENUE QUAI ZA AV R BOULEVARD BD BLV BVD BV ALLEE ESPLANADE PLACE BP ROUTE TSA ";

// The words are lost inside other words as well («Nom» in «Nomade»).
Text WithoutLabels(TextView block) {
  Text text{block};
  for (const TextView label : {u"Nom", u"Prénom", u"prénom", u"Domiciliation", u"Adresse", u","})
    text = ReplaceAll(text, label, u"");
  text = ReplaceAll(text, u":", u" ");
  return ReplaceAll(text, u"  ", u" ");
}

Text Without(Text text, std::initializer_list<TextView> words) {
  for (const TextView word : words) text = ReplaceAll(text, word, u"");
  return text;
}

// The tests of one line; all of them run, in the order in which they stand here.
class IdentityLines {
 public:
  IdentityLines(CvDocument& cv, const std::function<void()>& birthDateChanged)
      : cv_(cv), birthDateChanged_(birthDateChanged) {}

  void Take(TextView line, std::size_t number, const TextView* next) {
    const double value = ValeurNumerique(line);
    if (number <= 1) TakeName(line, value);
    TakeStreet(line, value, next);
    TakeWords(line);
    TakeTown(line, value);
    TakeTelephones(line, value);
    TakeMail(line);
  }

 private:
  // The first word is always the first name: «DUPONT Jean» gives the first name «DUPONT».
  void TakeName(TextView line, double value) {
    const auto blank = line.find(u' ');
    if (value != 0 || blank == TextView::npos || !cv_.Prenom.empty()) return;
    cv_.Prenom = line.substr(0, blank);
    cv_.Nom = TrimBlanks(line.substr(blank));
    if (ValeurNumerique(cv_.Prenom) > 0 || ValeurNumerique(cv_.Nom) > 0) {
      cv_.Prenom.clear();
      cv_.Nom.clear();
    }
  }

  // A date alone on its line begins with a small number and is long enough: it lands here too.
  void TakeStreet(TextView line, double value, const TextView* next) {
    constexpr std::size_t Shortest = 8;
    if (!(value > 0 && value < 300) || line.size() < Shortest) return;
    cv_.Adresse1 = line;
    // The line behind is taken as it stands, blanks included; the last line has none behind it.
    if (next != nullptr && ValeurNumerique(*next) == 0) cv_.Adresse2 = *next;
  }

  void TakeWords(TextView line) {
    if (!cv_.Adresse1.empty() && !cv_.Age.empty()) return;
    const Text normal = Normaliser(line);
    const auto words = Split(normal, u" ");
    for (std::size_t k = 0; k < words.size(); ++k) {
      if (Contains(AddressWords, u" " + Text{words[k]} + u" ")) {
        cv_.Adresse1 = line;
        return;
      }
      if (k > 0 && words[k] == u"ANS") cv_.Age = words[k - 1];
      // The date must not be the last word of its line.
      const bool wordsFollow = k + 3 < words.size();
      if (wordsFollow && (words[k] == u"NE" || words[k] == u"NEE") && words[k + 1] == u"LE") {
        cv_.DateNaissance = words[k + 2];
        if (birthDateChanged_) birthDateChanged_();
      }
    }
  }

  void TakeTown(TextView line, double value) {
    constexpr std::size_t PostcodeWidth = 6;
    if (!(value > 1000 && value < 99000)) return;
    cv_.CP = TrimBlanks(line.substr(0, PostcodeWidth));
    cv_.Ville = line.size() > PostcodeWidth ? TrimBlanks(line.substr(PostcodeWidth)) : TextView{};
  }

  // A mobile without its word in front reads as one large number and lands in the fixed one.
  void TakeTelephones(TextView line, double value) {
    const Text beginning = SansAccents(line.substr(0, 3));
    if (beginning == u"TEL" || beginning == u"DOM" || value > 99900)
      cv_.Tel = Without(SansAccents(line), {u"TELEPHONE", u"DOMICILE", u"DOM", u"TEL", u":", u"PHONE"});
    if (beginning == u"MOB" || beginning == u"POR")
      cv_.Mob = Without(SansAccents(line), {u"MOBILE", u"PORTABLE", u"MOB"});
  }

  void TakeMail(TextView line) {
    const auto at = line.find(u'@');
    if (at == TextView::npos) return;
    // One word in front of the address is dropped, and no more.
    const auto blank = line.find(u' ');
    if (blank < at) line.remove_prefix(blank + 1);
    // "MAIL" is lost in the domain as well, and its removal leaves "E-" of a label «E-mail».
    const Text address = Without(UpperCase(line), {u"EMAIL", u"MAIL", u"E-MAIL", u"COURRIEL", u":", u" "});
    cv_.Email = LowerCase(TrimBlanks(address));
  }

  CvDocument& cv_;
  const std::function<void()>& birthDateChanged_;
};

}  // namespace

bool ParseIdentity(CvDocument& cv, const std::function<void()>& birthDateChanged) {
  const TextView trimmed = TrimBlanks(cv.Identite);
  if (trimmed.empty()) return false;
  const Text block = WithoutLabels(trimmed);
  cv.Identite = block;

  const auto lines = Split(block, LineEnd);
  IdentityLines tests{cv, birthDateChanged};
  for (std::size_t i = 0; i < lines.size(); ++i)
    tests.Take(TrimBlanks(lines[i]), i, i + 1 < lines.size() ? &lines[i + 1] : nullptr);
  return true;
}

}  // namespace talvor
