#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "base/line_file.h"
#include "tests/cli/talvorctl.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor::cli {
namespace {

constexpr const char* Advertisement =
    "Maçon H/F\nSociété : Acme\nRéf : 4321\nécrire à j.d@acme.fr svp\nfin\n";

class CommandLineTest : public testing::Test {
 protected:
  void Prepare() { ASSERT_EQ(Talvorctl({"--espace", "d", "preparer"}).code, Done); }

  ScratchFolder scratch;
};

TEST_F(CommandLineTest, AnAdvertisementBecomesARowThatTheListShows) {
  Prepare();
  const Result captured = Talvorctl({"--espace", "d", "capturer", "-"}, "Caissier\nSociété : Acme\nfin\n");
  EXPECT_EQ(captured.out, "1\n");
  EXPECT_EQ(captured.err, "");
  const Result list = Talvorctl({"--espace", "d", "candidatures", "--tri", "societes"});
  EXPECT_TRUE(list.out.starts_with("ACME\n  1  ")) << list.out;
  EXPECT_TRUE(list.out.ends_with(" Caissier, ACME\n")) << list.out;
  const auto groups = nlohmann::json::parse(Talvorctl({"--espace", "d", "candidatures", "--json"}).out);
  EXPECT_EQ(groups[0]["groupe"], "Candidatures non émises");
  EXPECT_EQ(groups[0]["candidatures"][0]["Num"], "1");

  const auto detail = nlohmann::json::parse(Talvorctl({"--espace", "d", "candidature", "1", "--json"}).out);
  EXPECT_EQ(detail.size(), 25u);
  EXPECT_EQ(detail["Societe"], "ACME");
  EXPECT_EQ(detail["Description"], "Caissier\r\nSociété : Acme\r\nfin\r\n");
  EXPECT_NE(Talvorctl({"--espace", "d", "candidature", "1"}).out.find("\nStatut\u00A0: NON EMISE\n"),
            std::string::npos);
}

TEST_F(CommandLineTest, ACaptureWithoutATitleIsRefusedAndSavesNothing) {
  Prepare();
  const Result captured = Talvorctl({"--espace", "d", "capturer", "-"}, "rien\n");
  EXPECT_EQ(captured.code, Refused);
  EXPECT_EQ(captured.out, "");
  EXPECT_NE(captured.err.find("Talvor n'a pas réussi à identifier correctement l'annonce"),
            std::string::npos);
  EXPECT_EQ(Talvorctl({"--espace", "d", "candidatures"}).out, "Aucune candidature\n");
}

TEST_F(CommandLineTest, TheFieldsComeInTheirOrderAndFollowTheOptions) {
  std::ofstream{"a.txt"} << "\xEF\xBB\xBF" << Advertisement;
  std::ofstream{"i.json"} << R"({"Societe": "Durand"})";
  const Result result =
      Talvorctl({"analyser", "--adresse", "http://www.acme.fr/", "--initial", "i.json", "a.txt"});
  EXPECT_EQ(result.code, Done) << result.err;
  const auto record = nlohmann::ordered_json::parse(result.out);
  std::vector<std::string> keys;
  for (const auto& [key, value] : record.items()) keys.push_back(key);
  EXPECT_EQ(keys.size(), 17u);
  EXPECT_EQ(keys.front() + keys.back(), "IntituleOrigine");
  EXPECT_EQ(record["Societe"], "ACME") << "the e-mail stage looks at no guard";
  EXPECT_EQ(record["Origine"], "ACME");
  EXPECT_EQ(record["Reference"], "4321 ");
  EXPECT_TRUE(std::string{record["Description"]}.starts_with("Maçon H/F\r\n")) << "without the mark of order";

  const auto line = [](const char* option) {
    return nlohmann::json::parse(
        Talvorctl({"analyser", option, "-"}, "Caissier\nLyonParis\nfin\n").out)["Description"];
  };
  EXPECT_EQ(line("--brut"), "Caissier\nLyonParis\nfin\n");
  EXPECT_EQ(line("--decoller"), "Caissier\r\nLyon Paris\r\nfin\r\n");
  const auto dated = [](const char* day) {
    return nlohmann::json::parse(
        Talvorctl({"analyser", "--date", day, "-"}, "x\nle 02/03/2007\n").out)["DateDiffusion"];
  };
  EXPECT_EQ(dated("15/12/2007"), "02/03/2007");
  EXPECT_EQ(dated("15/12/2008"), "");
}

TEST_F(CommandLineTest, ALotGivesARecordALineAndNamesTheLinesThatAreNone) {
  const Result result = Talvorctl(
      {"analyser", "--lot"},
      R"({"texte":"Caissier\r\nfin\r\n","adresse":"http://www.acme.fr/1"})"
      "\n\npas du JSON\n"
      R"({"texte":3})"
      "\n"
      R"({"texte":"x","initial":{"Nom":"y"}})"
      "\n"
      R"({"texte":"le 02/03/2007\r\nfin x","date":"01/01/2007","initial":{"Ville":"Lyon"},"termfin":"1fin"})"
      "\n");
  EXPECT_EQ(result.code, Refused);
  std::istringstream lines{result.out};
  std::vector<nlohmann::json> records;
  for (std::string line; std::getline(lines, line);) records.push_back(nlohmann::json::parse(line));
  ASSERT_EQ(records.size(), 5u);
  EXPECT_EQ(records[0]["Origine"], "ACME");
  for (const std::size_t bad : {1u, 2u, 3u}) EXPECT_TRUE(records[bad].contains("erreur")) << bad;
  EXPECT_EQ(records[4]["DateDiffusion"], "02/03/2007");
  EXPECT_EQ(records[4]["Ville"], "Lyon");
  EXPECT_TRUE(result.err.starts_with("ligne 3\u00A0: ")) << result.err;
}

struct Fault {
  const char* reason;
  std::vector<std::string> arguments;
  int code;
  std::string said;
  friend void PrintTo(const Fault& row, std::ostream* out) { *out << row.reason; }
};

class Faults : public CommandLineTest, public testing::WithParamInterface<Fault> {};

TEST_P(Faults, AreToldInFrenchOnStandardError) {
  std::ofstream{"binaire"} << "\xFF\xFE\x01";
  std::ofstream{"liste.json"} << "[]";
  std::filesystem::create_directory("vide");
  std::filesystem::create_directory("faux");
  std::ofstream{"faux/Talvor.mdb"} << std::string(2000, 'x');
  const Result result = Talvorctl(GetParam().arguments);
  EXPECT_EQ(result.code, GetParam().code);
  EXPECT_EQ(result.out, "");
  EXPECT_NE(result.err.find(GetParam().said), std::string::npos) << result.err;
}

INSTANTIATE_TEST_SUITE_P(
    Commands, Faults,
    testing::Values(
        Fault{"no command", {}, WrongUsage, "il manque une commande"},
        Fault{"an unknown one", {"manger"}, WrongUsage, "inconnu\u00A0: manger (voir"},
        Fault{"an argument too many", {"preparer", "x"}, WrongUsage, "argument inattendu\u00A0: x"},
        Fault{"a number that is none", {"candidature", "x"}, WrongUsage, "un nombre est attendu"},
        Fault{"a sort that is none", {"candidatures", "--tri", "x"}, WrongUsage, "n’est pas admise"},
        Fault{"a lot with an option", {"analyser", "--lot", "--brut"}, WrongUsage, "--lot"},
        Fault{"a missing file", {"analyser", "absent"}, Refused, "«\u00A0absent\u00A0» est introuvable"},
        Fault{"a folder", {"analyser", "vide"}, Refused, "illisible"},
        Fault{"bytes that are no text", {"analyser", "binaire"}, Refused, "n’est pas un texte UTF-8"},
        Fault{"a date that is none", {"analyser", "--date", "31/02/2007", "-"}, Refused, "31/02/2007"},
        Fault{"fields that are none", {"analyser", "--initial", "liste.json", "-"}, Refused, "un objet JSON"},
        Fault{"a workspace that is not there",
              {"--espace", "absent", "candidatures"},
              Refused,
              "La base n'est pas accessible"},
        Fault{"a workspace without a base",
              {"--espace", "vide", "capturer", "-"},
              Refused,
              "La base n'est pas accessible"},
        Fault{"a base that is none",
              {"--espace", "faux", "candidatures"},
              Refused,
              "n’est pas une base de données"}));

TEST_F(CommandLineTest, APageIsRatedWithItsAddress) {
  const std::string page = "une offre, sa référence, la date, la société, le contrat, le lieu";
  EXPECT_EQ(
      Talvorctl({"evaluer", "-"}, page).out,
      "{\n  \"ScoreAnnonce\": 7.0,\n  \"ScoreMetiers\": 0,\n  \"Niveau\": 350.0,\n  \"FrameWeb\": 660\n}\n");
  const auto rating =
      nlohmann::json::parse(Talvorctl({"evaluer", "--adresse", "https://google.fr/", "-"}, page).out);
  EXPECT_EQ(rating["ScoreAnnonce"], 0);
}

TEST_F(CommandLineTest, ReportsAndStatisticsComeFromTheSameRows) {
  Prepare();
  EXPECT_EQ(Talvorctl({"--espace", "d", "rapport", "liste"}).out, "") << "no row, no page";
  ASSERT_EQ(Talvorctl({"--espace", "d", "capturer", "-"}, "Caissier\nSociété : Acmé\nfin\n").code, Done);
  const std::string list = Talvorctl({"--espace", "d", "rapport", "liste"}).out;
  EXPECT_NE(list.find("<FONT SIZE=2>ACM"), std::string::npos);
  EXPECT_NE(
      Talvorctl({"--espace", "d", "rapport", "justificatif"}).out.find("Activité de recherche d'emploi"),
      std::string::npos);
  EXPECT_EQ(Talvorctl({"--espace", "d", "rapport", "x"}).code, WrongUsage);
  const auto counts = nlohmann::json::parse(Talvorctl({"--espace", "d", "statistiques", "--json"}).out);
  EXPECT_EQ(counts["Statuts"]["NON EMISE"], 1);
  const std::string text = Talvorctl({"--espace", "d", "statistiques"}).out;
  EXPECT_NE(text.find("NON EMISE" + std::string(31, ' ') + "1  #\n"), std::string::npos) << text;
}

TEST_F(CommandLineTest, ADataFolderIsCopiedAndTakenBackEvenOverADamagedBase) {
  Prepare();
  ASSERT_EQ(Talvorctl({"--espace", "d", "capturer", "-"}, "Caissier\nSociété : Acmé\nfin\n").code, Done);
  const std::string before = Talvorctl({"--espace", "d", "candidatures"}).out;
  EXPECT_EQ(Talvorctl({"--espace", "d", "sauvegarder", "d/CV"}).code, Refused);
  const Result saved = Talvorctl({"--espace", "d", "sauvegarder", "clé/sous-dossier"});
  EXPECT_EQ(saved.code, Done) << saved.err;
  EXPECT_NE(saved.out.find("sous-dossier/d\n"), std::string::npos) << saved.out;

  // A copy into what is a data folder itself would take its base away.
  const auto base = ReadBytes("clé/sous-dossier/d/Talvor.mdb");
  EXPECT_EQ(Talvorctl({"--espace", "d", "sauvegarder", "clé/sous-dossier/d"}).code, Refused);
  EXPECT_EQ(ReadBytes("clé/sous-dossier/d/Talvor.mdb"), base);

  std::ofstream{"d/Talvor.mdb"} << std::string(2000, 'x');
  for (const char* given : {"clé/sous-dossier", "clé/sous-dossier/d"}) {
    const Result restored = Talvorctl({"--espace", "d", "restaurer", given});
    EXPECT_EQ(restored.code, Done) << restored.err;
    EXPECT_EQ(Talvorctl({"--espace", "d", "candidatures"}).out, before);
  }
  std::filesystem::create_directory("seule");
  std::filesystem::copy("clé/sous-dossier/d/Talvor.mdb", "seule");
  const std::string told = Talvorctl({"--espace", "d", "restaurer", "seule"}).out;
  EXPECT_TRUE(told.starts_with("1 fichier restauré dans ")) << told;
  EXPECT_EQ(Talvorctl({"--espace", "d", "restaurer", "clé"}).code, Refused);
  EXPECT_EQ(Talvorctl({"--espace", "absent", "sauvegarder", "x"}).code, Refused);
}

TEST_F(CommandLineTest, ARowThatIsNotThereIsNamed) {
  Prepare();
  const Result result = Talvorctl({"--espace", "d", "candidature", "99999"});
  EXPECT_EQ(result.code, Refused);
  EXPECT_NE(result.err.find("99999"), std::string::npos);
}

TEST_F(CommandLineTest, EveryCommandExplainsItselfInFrench) {
  for (const char* command : {"preparer", "analyser", "capturer", "candidatures", "candidature", "rapport",
                              "statistiques", "sauvegarder", "restaurer"}) {
    const Result help = Talvorctl({command, "--help"});
    EXPECT_EQ(help.code, Done);
    EXPECT_NE(help.out.find("Emploi : talvorctl " + std::string{command}), std::string::npos) << help.out;
    for (const char* english : {"Usage", "Options:", "Print", "REQUIRED", "Positionals"})
      EXPECT_EQ(help.out.find(english), std::string::npos) << command << ": " << english;
  }
}

}  // namespace
}  // namespace talvor::cli
