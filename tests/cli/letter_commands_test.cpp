#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "cli/commands.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor::cli {
namespace {

class LetterCommands : public testing::Test {
 protected:
  // Output, error text and exit code of «talvorctl lettre ...».
  std::string Lettre(std::vector<std::string> arguments, const std::string& input = {}) {
    arguments.insert(arguments.begin(), "lettre");
    std::istringstream in{input};
    std::ostringstream out;
    std::ostringstream err;
    Console console{in, out, err};
    const int code = RunCommandLine(std::move(arguments), console);
    return out.str() + err.str() + std::to_string(code);
  }

  ScratchFolder scratch;
};

TEST_F(LetterCommands, ComposePrintsWhatTheModelBecomesAndLeavesItsFile) {
  std::ofstream{"m.dat"} << "Pr\xE9nom=Marie\r\nDomaine=Informatique\r\n0:Corps=n\xE9(e) #Domaine#\r\n";
  EXPECT_EQ(Lettre({"composer", "m.dat", "--date", "05/03/2026"}),
            "{\n"
            "  \"Text1\": \"\\r\\n\\r\\n#Titre# #NomContact#,\\r\\n\\r\\nnée "
            "l'informatique\\r\\n\\r\\n\\r\\n\\r\\n\\r\\n\",\n"
            "  \"Objet\": \"En réponse à votre annonce référence #Reference#\",\n"
            "  \"Domaine\": \"informatique\"\n"
            "}\n0");
  std::ofstream{"p.dat"} << "0:Check_Modele=1\r\n0:Check_candidature=1\r\nVille=PARIS\r\n";
  const std::string printed = Lettre({"composer", "p.dat", "--date", "05/03/2026"});
  EXPECT_NE(printed.find("Le 05/03/2026 à Paris\\r\\n\\r\\nObjet : Candidature spontanée"), std::string::npos)
      << printed;
}

TEST_F(LetterCommands, MergePrintsTheLetterForTheCandidature) {
  std::ofstream{"m.dat"} << "Nom=DURAND\r\nPr\xE9nom=marie\r\nEmail=m@d.fr\r\nObjet=Num #Reference#\r\n"
                            "Text1=<N><N>#Titre# #NomContact#,<N>#Date# de #Intitule# #Ville##TermFin#\r\n";
  const std::string json = R"({"NomContact":"Paul Petit","Intitule":"Analyste","Reference":"A1"})";
  const std::string expected =
      "{\n"
      "  \"Texte\": \"Monsieur Paul Petit,\\r\\n05/03/2026 d'Analyste \",\n"
      "  \"Email\": \"Marie Durand<m@d.fr>\",\n"
      "  \"Objet\": \"Num A1\"\n"
      "}\n0";
  std::ofstream{"c.json"} << json;
  EXPECT_EQ(Lettre({"fusionner", "m.dat", "c.json", "--date", "05/03/2026"}), expected);
  EXPECT_EQ(Lettre({"fusionner", "m.dat", "-", "--date", "05/03/2026"}, json), expected);
}

TEST_F(LetterCommands, FaultsAreToldOnStandardError) {
  std::ofstream{"c.json"} << "{}";
  std::ofstream{"m.dat"} << "";
  const std::vector<std::pair<std::vector<std::string>, std::string>> rows{
      {{"composer", "absent"}, "talvorctl\u00A0: fichier non accessible\u00A0: «\u00A0absent\u00A0»\n1"},
      {{"composer", "m.dat", "--date", "31/02/2026"},
       "talvorctl\u00A0: la date «\u00A031/02/2026\u00A0» est incorrecte (JJ/MM/AAAA)\n1"},
      {{"fusionner", "absent", "c.json"},
       "Aucun modèle de lettre n'a été créé. Vous devrez rédiger le courrier d'accompagnement.\n1"},
      {{"fusionner", "m.dat", "absent"},
       "talvorctl\u00A0: le fichier «\u00A0absent\u00A0» est introuvable ou illisible\n1"},
      {{"fusionner", "m.dat", "-"}, "talvorctl\u00A0: «\u00A0-\u00A0» n’est pas du JSON\n1"},
      {{"fusionner", "m.dat"},
       "talvorctl\u00A0: il manque une commande ou un argument (voir «\u00A0talvorctl --help\u00A0»)\n2"},
      {{}, "talvorctl\u00A0: il manque une commande ou un argument (voir «\u00A0talvorctl --help\u00A0»)\n2"},
  };
  for (const auto& [arguments, said] : rows) EXPECT_EQ(Lettre(arguments), said);
  EXPECT_EQ(Lettre({"fusionner", "m.dat", "-"}, R"({"Nom":"x"})"),
            "talvorctl\u00A0: champ inconnu\u00A0: «\u00A0Nom\u00A0»\n1");
}

TEST_F(LetterCommands, ExplainThemselvesInFrench) {
  for (const std::string command : {"composer", "fusionner"}) {
    const std::string help = Lettre({command, "--help"});
    EXPECT_NE(help.find("Emploi : talvorctl lettre " + command), std::string::npos) << help;
    EXPECT_EQ(help.find("Options:"), std::string::npos) << help;
  }
}

}  // namespace
}  // namespace talvor::cli
