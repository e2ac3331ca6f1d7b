#include "cv/identity_parser.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>
#include <vector>

namespace talvor {
namespace {

// Fields as «Name=text», in the order of the form; those that are empty are left out.
struct Block {
  const char* reason;
  TextView text;
  std::vector<Text> fields;
  friend void PrintTo(const Block& row, std::ostream* out) { *out << row.reason; }
};

std::vector<Text> FieldsOf(const CvDocument& cv) {
  std::vector<Text> fields;
  for (const auto& field : CvFields) {
    static const CvDocument empty;
    if (field.name != u"Identite" && cv.*(field.text) != empty.*(field.text))
      fields.push_back(Text{field.name} + u"=" + cv.*(field.text));
  }
  return fields;
}

class IdentityBlocks : public testing::TestWithParam<Block> {};

TEST_P(IdentityBlocks, AreTakenApartLineByLine) {
  CvDocument cv;
  cv.Identite = GetParam().text;
  EXPECT_TRUE(ParseIdentity(cv));
  EXPECT_EQ(FieldsOf(cv), GetParam().fields);
}

INSTANTIATE_TEST_SUITE_P(
    ParseIdentity, IdentityBlocks,
    testing::Values(
        Block{"a whole head; the birth date stands behind a filled address and age",
              u"Jean Dupont\r\n12 rue des Lilas\r\nBâtiment B\r\n75011 Paris\r\nTel : 01 02 03 04 05\r\n"
              u"Mobile : 06 07 08 09 10\r\njean.dupont@exemple.fr\r\n35 ans\r\nNé le 12/03/1975",
              {u"Nom=Dupont", u"Adresse1=12 rue des Lilas", u"Prénom=Jean", u"Adresse2=Bâtiment B",
               u"CP=75011", u"Ville=Paris", u"Tel=  01 02 03 04 05", u"Mob=  06 07 08 09 10",
               u"Email=jean.dupont@exemple.fr", u"Age=35"}},
        Block{"labels; surname first; a date in words gives its day alone",
              u"Nom : DUPONT Jean\r\nNée le 3 mai 1980 à Lyon\r\nDomiciliation : 8 quai de la Gare\r\n"
              u"69009 LYON\r\nPortable : 06 11 22 33 44\r\nE-mail : d.jean@exemple.org",
              {u"Nom=Jean", u"Adresse1=8 quai de la Gare", u"Prénom=DUPONT", u"CP=69009", u"Ville=LYON",
               u"Mob=  06 11 22 33 44", u"Email=d.jean@exemple.org", u"DateNaissance=3"}},
        Block{"each address word overwrites the last; an age reads as a street; MAIL is lost in the domain",
              u"Zoé Ça Lemaître\r\nR de la Paix\r\nBP 12 Cedex\r\nE-mail:x@gmail.com\r\n"
              u"42 ans et 3 mois\r\nMobile:0611223344\r\n0102030405",
              {u"Nom=Ça Lemaître", u"Adresse1=42 ans et 3 mois", u"Prénom=Zoé", u"Adresse2=Mobile 0611223344",
               u"Tel=0102030405", u"Mob= 0611223344", u"Email=x@g.com", u"Age=42"}},
        Block{"a street in front is no name, and a name in the third line comes too late",
              u"12 rue Victor Hugo\r\n33 000 Bordeaux\r\nLuc Martin",
              {u"Adresse1=12 rue Victor Hugo", u"CP=33 000", u"Ville=Bordeaux"}},
        Block{"a name with a number is undone; a bare mobile and then a labelled telephone",
              u"Dr 12\r\nAnne Le Gall\r\n06 07 08 09 10\r\nTél. domicile 05 06 07 08 09\r\n"
              u"Port. 06 99 88 77 66\r\ncourriel : anne.legall@exemple.fr",
              {u"Nom=Le Gall", u"Prénom=Anne", u"Tel=.  05 06 07 08 09", u"Mob=PORT. 06 99 88 77 66",
               u"Email=anne.legall@exemple.fr"}},
        Block{"a date alone in the last line is a street without a line behind it",
              u"Paul Roux\r\n12/03/1975",
              {u"Nom=Roux", u"Adresse1=12/03/1975", u"Prénom=Paul"}},
        Block{"a long street number is a postcode of six characters",
              u"Jo Bo\r\n1005 chemin Vert\r\n75011",
              {u"Nom=Bo", u"Prénom=Jo", u"CP=75011"}},
        Block{"one word alone is dropped in front of an address",
              u"Mon adresse perso: a@b.fr",
              {u"Nom=adresse perso a@b.fr", u"Prénom=Mon", u"Email=adressepersoa@b.fr"}},
        Block{"a birth date with slashes and words behind it; the address line behind is not looked at",
              u"Inès Le Bris\r\navenue Foch\r\nNée le 12/03/1975 à Brest\r\n29200 Brest\r\n44 ans",
              {u"Nom=Le Bris", u"Adresse1=avenue Foch", u"Prénom=Inès", u"CP=29200", u"Ville=Brest",
               u"DateNaissance=12/03/1975", u"Age=44"}},
        Block{"labels inside words; an industrial zone as a name; the limits of postcode and telephone",
              u"Nomade, Adresse : 3 place du Marché\r\nZA Nord\r\n99500 Ailleurs\r\n99999 X\r\n"
              u"E-mail.x@exemple.fr",
              {u"Nom=Nord", u"Adresse1=ZA Nord", u"Prénom=ZA", u"Tel=99999 X", u"Email=e-.x@exemple.fr"}},
        Block{"one word never is a name", u"Nom : Martin", {}},
        Block{"a birth date as the last words of its line is not taken", u"x\r\ny\r\nNé le 12/03/1975", {}},
        Block{"the second address line is taken as it stands, a blank in front included",
              u"x\r\n1 chemin Bas \r\n Lieu-dit ",
              {u"Adresse1=1 chemin Bas", u"Adresse2= Lieu-dit"}},
        Block{"an empty line behind a street empties the second address line",
              u"x\r\n1 chemin Bas\r\nLieu-dit\r\n2 chemin Haut\r\n\r\n",
              {u"Adresse1=2 chemin Haut"}}));

TEST(ParseIdentity, StripsTheBlockItselfAndLeavesABlankOneAlone) {
  CvDocument cv;
  cv.Identite = u"  Nom : Martin, Prénom :    Zoé ";
  EXPECT_TRUE(ParseIdentity(cv));
  EXPECT_EQ(cv.Identite, u"  Martin    Zoé") << "labels, commas and one pass over double blanks";

  cv.Identite = u"   ";
  EXPECT_FALSE(ParseIdentity(cv));
  EXPECT_EQ(cv.Identite, u"   ");
}

TEST(ParseIdentity, ASecondBlockKeepsTheNameAndOverwritesTheRest) {
  CvDocument cv;
  cv.Prenom = u"Marie";
  cv.Nom = u"Curie";
  cv.CP = u"75005";
  cv.Tel = u"01";
  cv.Identite = u"Jean Dupont\r\n69001 Lyon";
  EXPECT_TRUE(ParseIdentity(cv));
  EXPECT_EQ(FieldsOf(cv),
            (std::vector<Text>{u"Nom=Curie", u"Prénom=Marie", u"CP=69001", u"Ville=Lyon", u"Tel=01"}));
}

TEST(ParseIdentity, HugeAndRandomBlocksAreTakenInNoTime) {
  CvDocument cv;
  cv.Identite = Text(5'000'000, u'9') + u"@" + Text(5'000'000, u' ') + u"x";
  EXPECT_TRUE(ParseIdentity(cv));
  cv.Identite.clear();
  while (cv.Identite.size() < 2'000'000) cv.Identite += u"12 rue a@b \r\nNé le 1 ans \r\r\n\n";
  EXPECT_TRUE(ParseIdentity(cv));

  std::mt19937 random{99};
  static constexpr TextView Alphabet = u"a1 @\r\n:,éN/TELANS";
  for (int round = 0; round < 300; ++round) {
    cv = {};
    for (int i = 0; i < 200; ++i) cv.Identite += Alphabet[random() % Alphabet.size()];
    ParseIdentity(cv);
  }
}

}  // namespace
}  // namespace talvor
