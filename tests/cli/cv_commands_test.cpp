#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/cli/talvorctl.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor::cli {
namespace {

class CvCommandsTest : public testing::Test {
 protected:
  ScratchFolder scratch;
};

// The bytes of both files are those of code page 1252.
TEST_F(CvCommandsTest, ACvFillsItsTemplate) {
  std::ofstream{"Zo\xC3\xA9 Roy.dat", std::ios::binary}
      << "Pr\xE9nom=Zo\xE9\r\nVille=\x8Cuilly &#128515;\r\nNomCV=autre\r\nLangues=perdu\r\n"
         "1:LangueCourant=1\r\nLanguesPlus=Un an<N>\xE0 Bonn\r\nDivers=<b>Voile</b>\r\nCouleur=#123456\r\n";
  std::ofstream{"m.htm", std::ios::binary}
      << "<meta content='text/html; charset=windows-1252'><p "
         "style='font-family:Arial;color:#FF6600'>#Prenom# #Nom##Ville# (#NomCV#) #Photographie#\r\n"
         "P01#Etudes#P02#Formations#P03<h2>Vide</h2>P04P05\x95 #Langues#P06#Divers#P07</p>";
  const std::string page =
      "<meta content='text/html; charset=utf-8'><p style='font-family:Arial;color:#123456'>Zoé Œuilly 😃 "
      "(Zoé "
      "Roy) \r\n"
      "• Allemand courant<br><br>Un an<br>à Bonn<b>Voile</b></p>\r\n\r\n";
  const Result rendered = Talvorctl({"cv", "rendre", "Zo\xC3\xA9 Roy.dat", "--modele", "m.htm"});
  EXPECT_EQ(rendered.err, "");
  EXPECT_EQ(rendered.code, Done);
  EXPECT_EQ(rendered.out, page);

  const Result withPhoto = Talvorctl({"cv", "rendre", "--photo", "--modele", "m.htm", "Zo\xC3\xA9 Roy.dat"});
  const std::string photo =
      "<IMG STYLE='border: 1.00pt solid #123456; padding: 0.05cm' SRC='Photo.jpg' WIDTH=100>";
  EXPECT_NE(withPhoto.out.find("(Zoé Roy) " + photo + "\r\n"), std::string::npos) << withPhoto.out;
}

TEST_F(CvCommandsTest, AnIdentityBlockGivesItsFieldsInTheirOrder) {
  const std::string fields = R"({
  "Prénom": "Zoé",
  "Nom": "Roy",
  "Adresse1": "12 rue des Lilas",
  "Adresse2": "Bât. \"B\"",
  "CP": "75011",
  "Ville": "Paris",
  "Tel": "  01 02 03 04 05",
  "Mob": "  06 07 08 09 10",
  "Email": "zoe@acme.fr",
  "Age": "35",
  "DateNaissance": "12/03/1975"
}
)";
  const std::string block =
      "\xEF\xBB\xBFZoé Roy\n12 rue des Lilas\r\nBât. \"B\"\n75011 Paris\nTel : 01 02 03 04 05\n"
      "Mobile : 06 07 08 09 10\nEmail : Zoe@Acme.fr\nNée le 12/03/1975 à Lyon\n35 ans\n";
  const Result read = Talvorctl({"cv", "identite", "-"}, block);
  EXPECT_EQ(read.err, "");
  EXPECT_EQ(read.code, Done);
  EXPECT_EQ(read.out, fields);
  std::ofstream{"bloc.txt", std::ios::binary} << block;
  EXPECT_EQ(Talvorctl({"cv", "identite", "bloc.txt"}).out, fields);

  const Result blank = Talvorctl({"cv", "identite", "-"}, " ");
  EXPECT_EQ(blank.code, Done);
  EXPECT_TRUE(blank.out.starts_with("{\n  \"Prénom\": \"\",\n  \"Nom\": \"\",\n")) << blank.out;
}

struct CvFault {
  const char* reason;
  std::vector<std::string> arguments;
  int code;
  std::string said;
  friend void PrintTo(const CvFault& row, std::ostream* out) { *out << row.reason; }
};

class CvFaults : public CvCommandsTest, public testing::WithParamInterface<CvFault> {};

TEST_P(CvFaults, AreToldInFrenchOnStandardError) {
  std::ofstream{"cv.dat"} << "Nom=Roy\r\n";
  std::ofstream{"binaire"} << "\xFF\xFE\x01";
  std::filesystem::create_directory("dossier");
  const Result result = Talvorctl(GetParam().arguments);
  EXPECT_EQ(result.code, GetParam().code);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "talvorctl\u00A0: " + GetParam().said + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    Commands, CvFaults,
    testing::Values(CvFault{"no command of its own",
                            {"cv"},
                            WrongUsage,
                            "il manque une commande ou un argument (voir «\u00A0talvorctl --help\u00A0»)"},
                    CvFault{"no template",
                            {"cv", "rendre", "cv.dat"},
                            WrongUsage,
                            "il manque une commande ou un argument (voir «\u00A0talvorctl --help\u00A0»)"},
                    CvFault{"two CVs",
                            {"cv", "rendre", "cv.dat", "b.dat", "--modele", "m.htm"},
                            WrongUsage,
                            "argument inattendu\u00A0: b.dat (voir «\u00A0talvorctl --help\u00A0»)"},
                    CvFault{"a missing CV",
                            {"cv", "rendre", "absent.dat", "--modele", "cv.dat"},
                            Refused,
                            "le CV «\u00A0absent.dat\u00A0» est introuvable ou illisible"},
                    CvFault{"a folder as CV",
                            {"cv", "rendre", "dossier", "--modele", "cv.dat"},
                            Refused,
                            "le CV «\u00A0dossier\u00A0» est introuvable ou illisible"},
                    CvFault{"a missing template",
                            {"cv", "rendre", "cv.dat", "--modele", "absent.htm"},
                            Refused,
                            "le modèle «\u00A0absent.htm\u00A0» est introuvable ou illisible"},
                    CvFault{"a missing block",
                            {"cv", "identite", "absent"},
                            Refused,
                            "le fichier «\u00A0absent\u00A0» est introuvable ou illisible"},
                    CvFault{"a block that is no text",
                            {"cv", "identite", "binaire"},
                            Refused,
                            "le fichier «\u00A0binaire\u00A0» n’est pas un texte UTF-8"}));

TEST_F(CvCommandsTest, EachOneExplainsItselfInFrench) {
  for (const std::string command : {"", "rendre", "convertir", "identite"}) {
    std::vector<std::string> arguments{"cv", "--help"};
    if (!command.empty()) arguments.insert(arguments.begin() + 1, command);
    const Result help = Talvorctl(arguments);
    EXPECT_EQ(help.code, Done);
    const std::string use = command.empty() ? "Emploi : talvorctl cv [" : "Emploi : talvorctl cv " + command;
    EXPECT_NE(help.out.find(use), std::string::npos) << help.out;
    for (const char* english : {"Usage", "Options:", "Print", "REQUIRED", "Positionals"})
      EXPECT_EQ(help.out.find(english), std::string::npos) << command << ": " << english;
  }
}

}  // namespace
}  // namespace talvor::cli
