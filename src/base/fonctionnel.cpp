#include "base/fonctionnel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace talvor {
namespace {

constexpr char16_t Fold(char16_t capital) {
  switch (capital) {
    case u'É':
    case u'È':
    case u'Ê':
      return u'E';
    case u'À':
      return u'A';
    case u'Ï':
      return u'I';
    case u'Û':
      return u'U';
    case u'Ô':
      return u'O';
    default:
      return capital;
  }
}

// Upper case and folding in one step. No character beyond the table changes.
constexpr std::size_t FoldTableSize = 0x2000;

const std::array<char16_t, FoldTableSize> FoldTable = [] {
  std::array<char16_t, FoldTableSize> table{};
  for (std::size_t c = 0; c < table.size(); ++c) table[c] = Fold(ToUpper(static_cast<char16_t>(c)));
  return table;
}();

char16_t Folded(char16_t c) { return c < FoldTableSize ? FoldTable[c] : c; }

// What a character becomes in the normal form: a character of the alphabet or a blank. No character
// beyond the table folds into the alphabet.
constexpr std::size_t NormalTableSize = 256;

const std::array<char16_t, NormalTableSize> NormalTable = [] {
  std::array<char16_t, NormalTableSize> table{};
  for (std::size_t c = 0; c < table.size(); ++c) {
    const char16_t folded = FoldTable[c];
    const bool inAlphabet =
        (folded >= u'A' && folded <= u'Z') || (folded >= u'0' && folded <= u'9') || folded == u'/';
    table[c] = inAlphabet ? folded : u' ';
  }
  return table;
}();

// Ten rounds that halve a run of blanks leave one of each 1024 begun.
constexpr std::size_t BlanksLeftAsOne = 1024;

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// The characters of a number, those that a number passes over left out.
class NumberReader {
 public:
  explicit NumberReader(TextView text) : text_(text) { SkipIgnored(); }

  char16_t Current() const { return at_ < text_.size() ? text_[at_] : u'\0'; }

  void Advance() {
    ++at_;
    SkipIgnored();
  }

  bool Take(char16_t c) {
    if (at_ >= text_.size() || text_[at_] != c) return false;
    Advance();
    return true;
  }

 private:
  void SkipIgnored() {
    while (at_ < text_.size() && (text_[at_] == u' ' || text_[at_] == u'\t' || text_[at_] == u'\n')) ++at_;
  }

  TextView text_;
  std::size_t at_ = 0;
};

double Finite(double value) { return std::min(value, std::numeric_limits<double>::max()); }

int DigitValue(char16_t c) {
  if (IsDigit(c)) return c - u'0';
  const char16_t capital = ToUpper(c);
  return capital >= u'A' && capital <= u'F' ? capital - u'A' + 10 : std::numeric_limits<int>::max();
}

double ReadInBase(NumberReader& reader, int base) {
  double value = 0;
  while (DigitValue(reader.Current()) < base) {
    value = Finite(value * base + DigitValue(reader.Current()));
    reader.Advance();
  }
  return value;
}

// The digits from here on as an exponent; 0 without any.
int ReadExponent(NumberReader& reader) {
  constexpr int Largest = 9999;
  int exponent = 0;
  while (IsDigit(reader.Current())) {
    exponent = std::min(Largest, exponent * 10 + (reader.Current() - u'0'));
    reader.Advance();
  }
  return exponent;
}

double ReadDecimal(NumberReader& reader) {
  double value = 0;
  bool anyDigit = false;
  const auto digits = [&](auto&& add) {
    while (IsDigit(reader.Current())) {
      add(reader.Current() - u'0');
      anyDigit = true;
      reader.Advance();
    }
  };
  digits([&](int digit) { value = Finite(value * 10 + digit); });
  if (reader.Take(u'.')) {
    double weight = 1;
    digits([&](int digit) { value += digit * (weight /= 10); });
  }
  if (anyDigit && (reader.Take(u'E') || reader.Take(u'D')))
    value = value == 0 ? 0 : Finite(value * std::pow(10.0, ReadExponent(reader)));
  return value;
}

}  // namespace

Text SansAccents(TextView text) {
  Text result(text.size(), u'\0');
  std::transform(text.begin(), text.end(), result.begin(), Folded);
  return result;
}

std::size_t FindSansAccents(TextView text, TextView what) {
  const Text folded = SansAccents(what);
  const auto at = std::search(text.begin(), text.end(), folded.begin(), folded.end(),
                              [](char16_t c, char16_t wanted) { return Folded(c) == wanted; });
  return at == text.end() && !folded.empty() ? TextView::npos : static_cast<std::size_t>(at - text.begin());
}

bool EstPrenomFeminin(TextView prenom) {
  const Text nom = SansAccents(prenom);

  // A name that ends like a man's is one, whatever else it holds; "ON" below is therefore out of reach.
  if (nom.ends_with(u'C') || nom.ends_with(u'N') || nom.ends_with(u'R')) return false;

  // The endings of women's names, but not for the names that begin with Jean.
  static constexpr std::array<TextView, 15> Endings{u"A",   u"ES",  u"OE",  u"ON",  u"AH",
                                                    u"EE",  u"IE",  u"TTE", u"LLE", u"AIS",
                                                    u"NCE", u"NNY", u"INE", u"NNE", u"ILDE"};
  const auto endsName = [&](TextView ending) { return nom.ends_with(ending); };
  if (!nom.starts_with(u"JEAN") && std::any_of(Endings.begin(), Endings.end(), endsName)) return true;

  return nom.starts_with(u"MARIE");
}

Text Normaliser(TextView text) {
  Text result;
  // A carriage return gives four characters, every other one at most one.
  result.resize(text.size() + 3 * static_cast<std::size_t>(std::count(text.begin(), text.end(), u'\r')));
  char16_t* out = result.data();
  std::size_t blanks = 0;
  bool begun = false;
  const auto put = [&](char16_t c) {
    // Blanks in front of the first word are trimmed; those behind the last one are never written.
    if (blanks != 0 && begun)
      for (std::size_t left = (blanks + BlanksLeftAsOne - 1) / BlanksLeftAsOne; left > 0; --left)
        *out++ = u' ';
    blanks = 0;
    begun = true;
    *out++ = c;
  };
  for (const char16_t c : text) {
    const char16_t normal = c < NormalTableSize ? NormalTable[c] : u' ';
    if (normal != u' ') {
      put(normal);
      continue;
    }
    ++blanks;
    if (c == u'\r') {
      ++blanks;
      put(u'.');
      ++blanks;
    }
  }
  result.resize(static_cast<std::size_t>(out - result.data()));
  return result;
}

int NumeroMois(TextView text) {
  const auto at = MonthAbbreviations.find(SansAccents(text.substr(0, 3)));
  if (at == TextView::npos) return 0;
  // To the nearest number, a half to the even one: a position inside a word still gives a month.
  return static_cast<int>(std::nearbyint(static_cast<double>(at) / 4 + 1));
}

Text NomPropre(TextView text) {
  Text result(text);
  char16_t before = u' ';
  for (char16_t& c : result) {
    c = before == u' ' ? ToUpper(c) : ToLower(c);
    before = c;
  }
  return result;
}

bool CodePostalValide(TextView text) {
  return text.size() == 5 && std::all_of(text.begin(), text.end(), IsDigit);
}

double ValeurNumerique(TextView text) {
  if (!text.empty() && text.front() >= u'A') return 0;  // no number begins with a letter
  NumberReader reader{text};
  if (!reader.Take(u'&')) return ReadDecimal(reader);
  if (reader.Take(u'H')) return ReadInBase(reader, 16);
  if (reader.Take(u'O')) return ReadInBase(reader, 8);
  return 0;
}

}  // namespace talvor
