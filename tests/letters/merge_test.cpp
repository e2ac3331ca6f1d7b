#include "letters/merge.h"

#include <array>
#include <filesystem>
#include <ostream>
#include <random>
#include <vector>

#include "tests/letters/letters_fixture.h"
#include "tracking/form_cand.h"

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
  Text fields;  // «Name=text», parted by "|"
  Text texte, merged;
  friend void PrintTo(const Case& row, std::ostream* out) { *out << row.reason; }
};

class Merging : public MergeTest, public testing::WithParamInterface<Case> {};

TEST_P(Merging, GivesTheLetter) {
  for (const TextView field : Split(GetParam().fields, u"|"))
    if (const auto equals = field.find(u'='); equals != TextView::npos)
      candidature.*(FindField(CandidatureTags, field.substr(0, equals))->text) = field.substr(equals + 1);
  EXPECT_EQ(Merged(GetParam().texte), GetParam().merged);
}

const Text Greet = u"#Titre# #NomContact#,";

INSTANTIATE_TEST_SUITE_P(
    Rules, Merging,
    testing::Values(
        Case{"three line ends go, a fourth stays", u"", u"<N><N><N><N>a<N>", u"\r\na\r\n"},
        Case{"no contact leaves its blank", u"Description= Mme ", Greet, u"Madame, Monsieur ,"},
        Case{"a woman by her first name", u"NomContact=Marie Durand", Greet, u"Madame Marie Durand,"},
        Case{"a man", u"NomContact=Paul Durand", Greet, u"Monsieur Paul Durand,"},
        Case{"no blank, no first name", u"NomContact=Marie", Greet, u"Monsieur Marie,"},
        Case{"an empty first name", u"NomContact= Marie", Greet, u"Monsieur  Marie,"},
        Case{"a mark makes a woman", u"NomContact=Paul D|Description=M. ou Mlle D", Greet, u"Madame Paul D,"},
        Case{"not without its blanks", u"NomContact=P|Description=Mme D, (Mme D)", Greet, u"Monsieur P,"},
        Case{"a title is elided everywhere", u"Intitule=Ami", u"de #Intitule#, de Amis", u"d'Ami, d'Amis"},
        Case{"not with a small vowel", u"Intitule=ami", u"de #Intitule#", u"de ami"},
        Case{"nor with an accent", u"Intitule=Économe", u"de #Intitule#", u"de Économe"},
        Case{"a source has an article", u"Origine=APEC", u"site de #Origine#", u"site de l'APEC"},
        Case{"the title goes first", u"Intitule=A|Origine=A", u"de #Origine#", u"d'A"},
        Case{"fields before cleared tags", u"Adresse=r|CP=7|Ville=P", u"#Adresse# #CP# #Ville#", u"r 7 P"},
        Case{"a cleared tag and empty fields", u"", u"#FonctionContact#[#CP# #Ville#]", u"[ ]"},
        Case{"the date", u"", u"#Date# #date#", u"01/03/2026 #date#"},
        Case{"a tag that names nothing stays", u"", u"#Vile# #ville# ##", u"#Vile# #ville# ##"},
        Case{"a value may bring a later tag", u"Ville=#CP#|CP=1", u"#Ville#", u"1"},
        Case{"but not an earlier one", u"CP=#Ville#|Ville=x", u"#CP#", u"#Ville#"}));

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
  formCand.StatusList.selected = 0;
  candidature = TextsOf(formCand);
  EXPECT_EQ(Merged(u"#Ville# #AdresseWeb# #ListeStatuts# #ListeContrats# #List1#"),
            u"Lyon http://x NON EMISE  ");
  EXPECT_TRUE(Merged(u"#TermFin#").starts_with(u"1Offre suivante >>\r\n"));
}

}  // namespace
}  // namespace talvor
