#include "letters/composer.h"

#include <gtest/gtest.h>

#include <ostream>

namespace talvor {
namespace {

const Day Today = *DayOf({2026, 3, 5});

LetterModel Model() {
  LetterModel model;
  model.Prenom = u"Marie";
  model.Nom = u"DUPONT";
  model.Adresse1 = u"3 rue X";
  model.CP = u"75001";
  model.Ville = u"PARIS";
  model.Pays = u"France";
  model.Corps = {u"a", u"b", u"c", u"d", u"e"};
  return model;
}

constexpr TextView Body = u"\r\n#Titre# #NomContact#,\r\n\r\na\r\nb\r\nc\r\nd\r\ne\r\n";

TEST(PrintedLetter, BearsItsHeadWithTheAddresseeOnTheRight) {
  LetterModel model = Model();
  model.Check_Modele = {true, false};
  model.Check_candidature = {true, false};
  model.Objet = u"kept";
  const Text right(80, u' ');
  const Text addressee = right + u"#Titre# #NomContact#\r\n" + right + u"#FonctionContact#\r\n" + right +
                         u"#Societe#\r\n" + right + u"#Adresse#\r\n" + right + u"#CP# #Ville#\r\n\r\n" +
                         right + u"Le 05/03/2026 à Paris\r\n\r\n";
  ComposerLettre(model, Today);
  EXPECT_EQ(model.Text1, u"Marie DUPONT\r\n3 rue X\r\n75001 PARIS France\r\n" + addressee +
                             u"Objet : Candidature spontanée\r\n" + Text{Body});
  EXPECT_EQ(model.Objet, u"kept");

  model.Adresse2 = u"Bât. B";
  model.Tel = u"01";
  model.Mob = u"06";
  model.Email = u"m@x.fr";
  model.Check_candidature = {false, true};
  ComposerLettre(model, Today);
  EXPECT_EQ(model.Text1,
            u"Marie DUPONT\r\n3 rue X\r\nBât. B\r\n75001 PARIS France\r\nTel : 01\r\nmob : 06\r\n"
            u"Courriel : m@x.fr\r\n\r\n" +
                addressee + u"Objet : En réponse à votre annonce référence #Reference#\r\n" + Text{Body});
}

TEST(MailLetter, BeginsWithTwoLineEndsAndHasItsSubjectApart) {
  LetterModel model = Model();
  ComposerLettre(model, Today);
  EXPECT_EQ(model.Text1, u"\r\n" + Text{Body});
  EXPECT_EQ(model.Objet, u"En réponse à votre annonce référence #Reference#");
  model.Check_candidature = {true, false};
  ComposerLettre(model, Today);
  EXPECT_EQ(model.Objet, u"Candidature spontanée");
}

struct Sentence {
  const char* reason;
  Text prenom, domaine, corps, composed;
  friend void PrintTo(const Sentence& row, std::ostream* out) { *out << row.reason; }
};

class Sentences : public testing::TestWithParam<Sentence> {};

TEST_P(Sentences, AreFilled) {
  LetterModel model = Model();
  model.Prenom = GetParam().prenom;
  model.Domaine = GetParam().domaine;
  model.LastSociete = u"Acme";
  model.Competences = u"la paie (e)";
  model.Fonction = u"Juriste #Poste#";
  model.Poste = u"clerc";
  model.Corps = {GetParam().corps};
  ComposerLettre(model, Today);
  EXPECT_EQ(model.Text1,
            u"\r\n\r\n#Titre# #NomContact#,\r\n\r\n" + GetParam().composed + u"\r\n\r\n\r\n\r\n\r\n");
  EXPECT_EQ(model.Domaine, LowerCase(GetParam().domaine));
}

INSTANTIATE_TEST_SUITE_P(
    Tags, Sentences,
    testing::Values(Sentence{"a woman", u"Marie", u"", u"sérieu(x)(se), né(e)", u"sérieuse, née"},
                    Sentence{"a man", u"Paul", u"", u"sérieu(x)(se), né(e)", u"sérieux, né"},
                    Sentence{"tokens are told by case", u"Marie", u"", u"(E)(X)(SE)", u"(E)(X)(SE)"},
                    Sentence{"a plain vowel takes an article", u"Paul", u"Informatique", u"#Domaine#",
                             u"l'informatique"},
                    Sentence{"an accented one takes none", u"Paul", u"Édition", u"#Domaine#", u"édition"},
                    Sentence{"nor does a consonant", u"Paul", u"La Vente", u"#Domaine#", u"la vente"},
                    Sentence{"an empty domain leaves the article", u"Paul", u"", u"#Domaine#", u"l'"},
                    Sentence{"tags in lower case give the same", u"Marie", u"",
                             u"#competences# #Competences# #fonction#", u"la paie e la paie e Juriste clerc"},
                    Sentence{"the others stay", u"Paul", u"", u"#domaine# #Ville# #poste# #LastSociete#",
                             u"#domaine# #Ville# #poste# Acme"}));

}  // namespace
}  // namespace talvor
