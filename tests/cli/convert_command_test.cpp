#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <tuple>
#include <vector>

#include "app/process.h"
#include "base/line_file.h"
#include "tests/cli/talvorctl.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor::cli {
namespace {

namespace fs = std::filesystem;

class ConvertCommandTest : public testing::Test {
 protected:
  // A data folder with one CV, its template and its photo.
  ConvertCommandTest() {
    fs::create_directory("CV");
    fs::create_directory("Modeles");
    std::ofstream{"CV/Zo\xC3\xA9 Roy.dat", std::ios::binary}
        << "Pr\xE9nom=Zo\xE9\r\nNom=ROY\r\nVille=\x8Cuilly \x80\r\nMod\xE8le=M.htm\r\n"
           "Divers=Voile<N>\xC9"
           "checs\r\nCouleur=#0369A1\r\n";
    std::ofstream{"Modeles/M.htm", std::ios::binary}
        << "<html><body><h1 style='color:#FF6600'>#Prenom# #Nom#</h1><p>#Photographie#</p>\r\n"
           "<p>#Ville#</p>P01P02P03P04P05P06#Divers#P07</body></html>\r\n";
    fs::copy_file(fs::path{TALVOR_TEST_DATA} / "cv/photo.png", "Modeles/Zo\xC3\xA9 Roy.jpg");
  }

  static Result Convert(const std::string& target) {
    return Talvorctl({"cv", "convertir", "CV/Zo\xC3\xA9 Roy.dat", "--vers", target});
  }

  // The document as LibreOffice opens it again, in another format.
  static std::string Reread(const fs::path& document, const std::string& format, const std::string& ending) {
    std::vector<std::string> order{
        "soffice",    "-env:UserInstallation=file://" + fs::absolute("profil").string(),
        "--headless", "--convert-to",
        format,       "--outdir",
        "relu",       document.string()};
    if (document.extension() == ".pdf") order.insert(order.begin() + 3, "--infilter=writer_pdf_import");
    Run(order);
    return ReadBytes("relu/" + document.stem().string() + ending).value_or("(missing)");
  }

  // Its words, one blank between them.
  static std::string Words(const fs::path& document) {
    std::string text;
    if (document.extension() == ".pdf") {
      Run({"pdftotext", document.string(), "texte.txt"});
      text = ReadBytes("texte.txt").value_or("(missing)");
    } else {
      text = Reread(document, "txt:Text (encoded):UTF8", ".txt");
    }
    if (text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
    std::istringstream words(text);
    std::string word, all;
    while (words >> word) all += (all.empty() ? "" : " ") + word;
    return all;
  }

  static void Run(const std::vector<std::string>& order) {
    EXPECT_EQ(RunProcess(order, std::chrono::seconds{60}).exitCode, 0) << order.front();
  }

  ScratchFolder scratch;
};

TEST_F(ConvertCommandTest, EachFormatOpensAgainWithItsTextItsColourAndItsPhoto) {
  for (const std::string ending : {".doc", ".docx", ".odt", ".pdf"}) {
    const std::string target = "./-d\xC3\xA9part $1" + ending;
    std::ofstream{target} << "old";
    const Result converted = Convert(target);
    EXPECT_EQ(converted.err, "") << ending;
    ASSERT_EQ(converted.code, Done) << ending;
    EXPECT_EQ(converted.out, target + "\n");
    EXPECT_EQ(Words(target), "Zoé ROY Œuilly € Voile Échecs") << ending;
    const std::string document = Reread(target, "fodt", ".fodt");
    EXPECT_NE(document.find("#0369a1"), std::string::npos) << ending;
    EXPECT_NE(document.find("<draw:image"), std::string::npos) << ending;
  }
}

// The photo is 46 x 56 and 100 wide on the page, a hundred and four hundredths of an inch.
TEST_F(ConvertCommandTest, ThePhotoKeepsItsProportions) {
  ASSERT_EQ(Convert("cv.odt").code, Done);
  const std::string document = Reread("cv.odt", "fodt", ".fodt");
  const auto measure = [&](const std::string& name) {
    const auto at = document.find(name + "=\"", document.find("<draw:frame"));
    return at == std::string::npos ? 0 : std::stod(document.substr(at + name.size() + 2));
  };
  EXPECT_NEAR(measure("svg:height") / measure("svg:width"), 56.0 / 46.0, 0.01);
}

TEST_F(ConvertCommandTest, TheTemplateComesFromTheFolderOfTheCvOrTheOneToldOrTheDeliveredOnes) {
  fs::create_directories("ailleurs/Modeles");
  std::ofstream{"ailleurs/Modeles/M.htm"} << "<p>Ailleurs #Nom#</p>\r\n";
  ASSERT_EQ(
      Talvorctl({"--espace", "ailleurs", "cv", "convertir", "CV/Zo\xC3\xA9 Roy.dat", "--vers", "a.odt"}).code,
      Done);
  EXPECT_EQ(Words("a.odt"), "Ailleurs ROY");
  fs::rename("Modeles/M.htm", "Modeles/N.htm");
  const Result none = Convert("b.odt");
  EXPECT_EQ(none.code, Refused);
  EXPECT_EQ(none.err, "talvorctl\u00A0: le modèle «\u00A0M.htm\u00A0» est introuvable ou illisible\n");
  std::ofstream{"CV/Zo\xC3\xA9 Roy.dat", std::ios::app} << "Mod\xE8le=Basic.htm\r\n";
  ASSERT_EQ(Convert("c.odt").code, Done);
  EXPECT_NE(Words("c.odt").find("Échecs"), std::string::npos);
}

TEST_F(ConvertCommandTest, FaultsAreToldInFrenchAndLeaveTheDocument) {
  std::ofstream{"cv.doc"} << "old";
  std::ofstream{".~lock.cv.doc#"} << "x";
  const std::string cv = "CV/Zo\xC3\xA9 Roy.dat";
  fs::copy_file("Modeles/M.htm", "M.htm");
  std::ofstream{"CV/x.dat"} << "Nom=ROY\r\nMod\xE8le=../M.htm\r\n";
  for (const auto& [arguments, code, said] :
       std::vector<std::tuple<std::vector<std::string>, int, std::string>>{
           {{cv, "--vers", "cv.rtf"},
            Refused,
            "le format de «\u00A0cv.rtf\u00A0» n’est ni .doc, ni .docx, ni .odt, ni .pdf"},
           {{cv, "--vers", "cv"},
            Refused,
            "le format de «\u00A0cv\u00A0» n’est ni .doc, ni .docx, ni .odt, ni .pdf"},
           {{"absent.dat", "--vers", "cv.doc"},
            Refused,
            "le CV «\u00A0absent.dat\u00A0» est introuvable ou illisible"},
           {{"CV/x.dat", "--vers", "a.doc"},
            Refused,
            "le modèle «\u00A0../M.htm\u00A0» est introuvable ou illisible"},
           {{cv, "--vers", "cv.doc"},
            Refused,
            "«\u00A0cv.doc\u00A0»\u00A0: Le fichier est en cours d'utilisation. Conversion impossible"},
           {{cv},
            WrongUsage,
            "il manque une commande ou un argument (voir «\u00A0talvorctl --help\u00A0»)"}}) {
    std::vector<std::string> all{"cv", "convertir"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const Result result = Talvorctl(all);
    EXPECT_EQ(result.code, code);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "talvorctl\u00A0: " + said + "\n");
  }
  EXPECT_EQ(ReadBytes("cv.doc"), "old");
  const Result nowhere = Convert("absent/cv.doc");
  EXPECT_EQ(nowhere.code, Refused);
  EXPECT_TRUE(nowhere.err.find("n’a pas pu être écrit") != std::string::npos) << nowhere.err;
  ::setenv("TMPDIR", "cv.doc", 1);
  const Result noRoom = Convert("b.doc");
  ::unsetenv("TMPDIR");
  EXPECT_EQ(noRoom.code, Refused);
  EXPECT_EQ(noRoom.err,
            "talvorctl\u00A0: «\u00A0cv.doc\u00A0»\u00A0: un fichier se trouve à la place d’un dossier.\n");
}

}  // namespace
}  // namespace talvor::cli
