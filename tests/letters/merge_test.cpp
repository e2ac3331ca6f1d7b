#include "letters/merge.h"

#include <random>

#include "tests/letters/letters_fixture.h"

namespace talvor {
namespace {

class MergeTest : public LettersTest {
 protected:
  // Merges a model of these lines.
  void Merge(TextView lines) {
    EXPECT_TRUE(
        FusionnerLettre(Write("Lettres/m.dat", lines), candidature, clock.today, letter, dialogs, shell));
  }
  Text Merged(const Text& texte) {
    Merge(u"Text1=" + texte + u"\r\n");
    return letter.Texte;
  }

  CandidatureTexts candidature;
  MergedLetter letter;
};

TEST_F(MergeTest, WithoutAModelTellsSoAndChangesNothing) {
  letter = {u"t", u"e", u"o"};
  EXPECT_FALSE(FusionnerLettre(FileIn(std::filesystem::current_path() / "Lettres", u""), candidature,
                               clock.today, letter, dialogs, shell));
  EXPECT_EQ(dialogs.told,
            std::vector<Text>{u"Aucun modèle de lettre n'a été créé. Vous devrez rédiger le courrier "
                              u"d'accompagnement."});
  EXPECT_EQ(letter.Texte + letter.Email + letter.Objet, u"teo");
  EXPECT_TRUE(shell.calls.empty());
}

TEST_F(MergeTest, ReadsItsFiveLinesByTheirFirstCharacters) {
  letter.Objet = u"as it stood";
  Merge(
      u"NomLettre=x\r\nPrénom=jean-rené\r\nNom=d'ARC\r\nEmail=j@x.fr\r\nText1=a<N>b=c\r\nObjet=  "
      u"\r\n5:Email=y\r\n");
  EXPECT_EQ(letter.Texte, u"a\r\nb=c");
  EXPECT_EQ(letter.Email, u"Jean Rene D Arc<j@x.fr>");
  EXPECT_EQ(letter.Objet, u"as it stood");
  EXPECT_EQ(shell.calls, std::vector<Text>{u"Show FormPostuler"});

  Merge(u"Text1\r\nText12=d\r\nObjet2=s #Reference# #Ville#\r\n");
  EXPECT_EQ(letter.Texte, u"d");
  EXPECT_EQ(letter.Objet, u"s  #Ville#") << "the reference is the only tag of a subject";
  EXPECT_EQ(letter.Email, u" <Jean Rene D Arc<j@x.fr>>")
      << "without its line the sender stays between the brackets";
}

struct Case {
  const char* reason;
  std::vector<std::pair<Text, Text>> fields;
  Text texte, merged;
  friend void PrintTo(const Case& row, std::ostream* out) { *out << row.reason; }
};

class Merging : public MergeTest, public testing::WithParamInterface<Case> {};

TEST_P(Merging, GivesTheLetter) {
  for (const auto& [name, text] : GetParam().fields)
    candidature.*(FindField(CandidatureTags, name)->text) = text;
  EXPECT_EQ(Merged(GetParam().texte), GetParam().merged);
}

const Text Salutation = u"#Titre# #NomContact#,";

INSTANTIATE_TEST_SUITE_P(
    Rules, Merging,
    testing::Values(
        Case{"three line ends go, a fourth stays", {}, u"<N><N><N><N>a<N>", u"\r\na\r\n"},
        Case{"no contact leaves its blank", {}, Salutation, u"Madame, Monsieur ,"},
        Case{"a woman by her first name",
             {{u"NomContact", u"Marie Durand"}},
             Salutation,
             u"Madame Marie Durand,"},
        Case{"a man", {{u"NomContact", u"Paul Durand"}}, Salutation, u"Monsieur Paul Durand,"},
        Case{"a contact without a blank is a man",
             {{u"NomContact", u"Marie"}},
             Salutation,
             u"Monsieur Marie,"},
        Case{"a contact that begins with a blank, too",
             {{u"NomContact", u" Marie"}},
             Salutation,
             u"Monsieur  Marie,"},
        Case{"a mark in the advertisement makes a woman",
             {{u"NomContact", u"Paul Durand"}, {u"Description", u"voir Mlle Durand"}},
             Salutation,
             u"Madame Paul Durand,"},
        Case{"with its blanks alone",
             {{u"NomContact", u"Paul"}, {u"Description", u"Mme Durand, (Mme X)\r\nMme Y"}},
             Salutation,
             u"Monsieur Paul,"},
        Case{"a mark without a contact changes nothing",
             {{u"Description", u" Mme "}},
             u"#Titre#",
             u"Madame, Monsieur"},
        Case{"a title with a capital vowel",
             {{u"Intitule", u"Analyste"}},
             u"poste de #Intitule#, de Analystes",
             u"poste d'Analyste, d'Analystes"},
        Case{"not with a small one", {{u"Intitule", u"analyste"}}, u"de #Intitule#", u"de analyste"},
        Case{"nor with an accent", {{u"Intitule", u"Économe"}}, u"de #Intitule#", u"de Économe"},
        Case{"nor with Y", {{u"Intitule", u"Yodleur"}}, u"de #Intitule#", u"de Yodleur"},
        Case{"a source takes its article", {{u"Origine", u"APEC"}}, u"site de #Origine#", u"site de l'APEC"},
        Case{"the title goes first",
             {{u"Intitule", u"Agent"}, {u"Origine", u"Agent"}},
             u"de #Intitule# de #Origine#",
             u"d'Agent d'Agent"},
        Case{"an address is a field",
             {{u"Adresse", u"rue X"}, {u"CP", u"75001"}, {u"Ville", u"Paris"}},
             u"#FonctionContact##Adresse# #CP# #Ville#",
             u"rue X 75001 Paris"},
        Case{"an empty one leaves the blank", {}, u"#Adresse#[#CP# #Ville#]", u"[ ]"},
        Case{"the date", {}, u"#Date# #date#", u"01/03/2026 #date#"},
        Case{"a tag that names nothing stays", {}, u"#Vile# #ville# ##", u"#Vile# #ville# ##"},
        Case{"the reference keeps its word", {}, u"référence #Reference#.", u"référence ."},
        Case{"a value put in early may bring a later tag",
             {{u"Ville", u"#CP#"}, {u"CP", u"1"}},
             u"#Ville#",
             u"1"},
        Case{"but not an earlier one", {{u"CP", u"#Ville#"}, {u"Ville", u"x"}}, u"#CP#", u"#Ville#"}));

TEST_F(MergeTest, LeavesNoTagOfAKnownFieldInRandomLetters) {
  static const std::vector<Text> pieces{u"Atelier", u"de ", u"é",    u" ",  u"\r\n",
                                        u" Mme ",   u"=",   u"Lyon", u"<N>"};
  std::mt19937 random{5};
  for (int round = 0; round < 60; ++round) {
    Text texte;
    for (const auto& field : CandidatureTags) {
      Text& value = candidature.*(field.text);
      value.clear();
      for (auto count = random() % 4; count > 0; --count) value += pieces[random() % pieces.size()];
    }
    for (int i = 0; i < 60; ++i) {
      const auto choice = random() % (CandidatureTags.size() + 3);
      if (choice < CandidatureTags.size())
        texte += u"de #" + Text{CandidatureTags[choice].name} + u"#";
      else
        texte += std::array{u"#Titre#", u"#Date#", u"#FonctionContact#"}[choice - CandidatureTags.size()];
    }
    ASSERT_FALSE(Contains(Merged(texte), u"#")) << ToUtf8(letter.Texte);
  }
}

TEST_F(MergeTest, TakesTheTextsOfTheForm) {
  FakeBrowser browser;
  FormCand formCand{principale, clock, dialogs, shell, browser};
  formCand.Ville = u"Lyon";
  formCand.AdresseWeb = u"http://x";
  formCand.ListeStatutsChoice.selected = 0;
  candidature = TextsOf(formCand);
  EXPECT_EQ(Merged(u"#Ville# #AdresseWeb# #ListeStatuts# #ListeContrats# #List1#"),
            u"Lyon http://x NON EMISE  ");
  EXPECT_TRUE(Merged(u"#TermFin#").starts_with(u"1Offre suivante >>\r\n"));
}

}  // namespace
}  // namespace talvor
