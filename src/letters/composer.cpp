#include "letters/composer.h"

#include <array>
#include <utility>

#include "base/fonctionnel.h"

namespace talvor {
namespace {

constexpr TextView SpontaneousObject = u"Candidature spontanée";
constexpr TextView AnswerObject = u"En réponse à votre annonce référence #Reference#";

struct GenderToken {
  TextView token, feminine, masculine;
};

constexpr std::array<GenderToken, 3> GenderTokens{{
    {u"(e)", u"e", u""},
    {u"(x)", u"", u"x"},
    {u"(se)", u"se", u""},
}};

// In lower case a tag gives the field as it stands, too.
constexpr FieldTable<LetterModel, 6> QuotedFields{{
    {u"#LastSociete#", &LetterModel::LastSociete},
    {u"#Competences#", &LetterModel::Competences},
    {u"#competences#", &LetterModel::Competences},
    {u"#Fonction#", &LetterModel::Fonction},
    {u"#fonction#", &LetterModel::Fonction},
    {u"#Poste#", &LetterModel::Poste},
}};

TextView ObjectOf(const LetterModel& model) {
  return model.Check_candidature[Spontaneous] ? SpontaneousObject : AnswerObject;
}

class Lines {
 public:
  Lines& Add(TextView line) {
    text_.append(line).append(LineEnd);
    return *this;
  }
  // The right half of the page.
  Lines& AddRight(TextView line) {
    constexpr std::size_t Blanks = 80;
    text_.append(Blanks, u' ');
    return Add(line);
  }
  Lines& AddIfAny(TextView label, TextView value, TextView end = {}) {
    if (!value.empty()) text_.append(label).append(value).append(LineEnd).append(end);
    return *this;
  }
  Text Take() { return std::move(text_); }

 private:
  Text text_;
};

// Sender, addressee, date and subject of a printed letter.
void AddHead(Lines& lines, const LetterModel& model, Day today) {
  lines.Add(model.Prenom + u" " + model.Nom)
      .Add(model.Adresse1)
      .AddIfAny({}, model.Adresse2)
      .Add(model.CP + u" " + model.Ville + u" " + model.Pays)
      .AddIfAny(u"Tel : ", model.Tel)
      .AddIfAny(u"mob : ", model.Mob)
      .AddIfAny(u"Courriel : ", model.Email, LineEnd)
      .AddRight(u"#Titre# #NomContact#")
      .AddRight(u"#FonctionContact#")
      .AddRight(u"#Societe#")
      .AddRight(u"#Adresse#")
      .AddRight(u"#CP# #Ville#")
      .Add({})
      .AddRight(u"Le " + DateText(today) + u" à " + NomPropre(model.Ville))
      .Add({})
      .Add(u"Objet : " + Text{ObjectOf(model)});
}

// The domain behind its article: only the vowels take one, and an empty domain counts as a vowel.
Text DomainInSentence(TextView domaine) {
  const bool elided = domaine.empty() || Contains(u"aeiou", domaine.substr(0, 1));
  return (elided ? u"l'" : u"") + Text{domaine};
}

}  // namespace

Text WithGender(TextView text, TextView prenom) {
  const bool feminine = EstPrenomFeminin(prenom);
  Text result{text};
  for (const auto& token : GenderTokens)
    result = ReplaceAll(result, token.token, feminine ? token.feminine : token.masculine);
  return result;
}

void ComposerLettre(LetterModel& model, Day today) {
  Lines lines;

  // A printed letter begins with its head, a mail with an empty line and has its subject apart.
  if (model.Check_Modele[Printed]) {
    AddHead(lines, model, today);
  } else {
    lines.Add({});
    model.Objet = ObjectOf(model);
  }

  // The salutation, behind an empty line.
  lines.Add({}).Add(u"#Titre# #NomContact#,").Add({});

  // The five sentences, a line each.
  for (const Text& sentence : model.Corps) lines.Add(sentence);

  // The domain, kept in lower case.
  Text text = lines.Take();
  model.Domaine = LowerCase(model.Domaine);
  text = ReplaceAll(text, u"#Domaine#", DomainInSentence(model.Domaine));

  // What the sentences quote.
  for (const auto& field : QuotedFields) text = ReplaceAll(text, field.name, model.*(field.text));

  // The gender of the sender, over the whole letter.
  model.Text1 = WithGender(text, model.Prenom);
}

}  // namespace talvor
