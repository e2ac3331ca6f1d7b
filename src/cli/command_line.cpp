#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/failure_cause.h"
#include "cli/commands.h"
#include "tracking/store.h"

namespace talvor::cli {
namespace {

// The words of the help that are not the commands' own.
void SpeakFrench(CLI::App& app) {
  app.set_help_flag("-h,--help", "Affiche cette aide");
  app.get_help_ptr()->group("Options ");
  app.option_defaults()->group("Options ");
  auto formatter = std::make_shared<CLI::Formatter>();
  formatter->column_width(36);
  for (const auto& [key, word] :
       std::initializer_list<std::pair<const char*, const char*>>{{"Usage", "Emploi "},
                                                                  {"OPTIONS", "OPTIONS"},
                                                                  {"SUBCOMMAND", "COMMANDE"},
                                                                  {"SUBCOMMANDS", "COMMANDE"},
                                                                  {"Options", "Options "},
                                                                  {"Positionals", "Arguments "},
                                                                  {"Subcommands", "Commandes "},
                                                                  {"REQUIRED", "(obligatoire)"},
                                                                  {"TEXT", "TEXTE"},
                                                                  {"INT", "NOMBRE"}})
    formatter->label(key, word);
  app.formatter(formatter);
}

// What the parser refuses, in French; its own words are English.
std::string Refusal(const CLI::App& app, const CLI::ParseError& error) {
  // A command that does not exist is a word left over, and a missing command, for the parser.
  const bool required = dynamic_cast<const CLI::RequiredError*>(&error) != nullptr;
  if (required || dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
    std::string words;
    for (const auto& word : app.remaining(true)) words += " " + word;
    if (words.empty()) return "il manque une commande ou un argument";
    return (required ? "commande ou argument inconnu\u00A0:" : "argument inattendu\u00A0:") + words;
  }
  if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr) return "un nombre est attendu";
  if (dynamic_cast<const CLI::ValidationError*>(&error) != nullptr) return "une valeur n’est pas admise";
  return "les arguments sont incorrects";
}

// The commands as the parser knows them; each one sets what is to run.
class CommandLine {
 public:
  explicit CommandLine(Console& console) : console_(console) {
    SpeakFrench(app_);
    app_.name("talvorctl");
    app_.require_subcommand(1);
    app_.add_option("--espace", workspace_, "Dossier de données (par défaut, le dossier habituel)")
        ->type_name("DOSSIER");
    AddPreparer();
    AddAnalyser();
    AddEvaluer();
    AddCapturer();
    AddCandidatures();
    AddCandidature();
    AddRapport();
    AddStatistiques();
    AddLettre();
    AddCv();
    AddSauvegarde();
  }

  ExitCode Run(std::vector<std::string> arguments) {
    std::reverse(arguments.begin(), arguments.end());  // as the parser takes them
    try {
      app_.parse(arguments);
    } catch (const CLI::CallForHelp&) {
      console_.out << app_.help();  // of the command given, if any
      return Done;
    } catch (const CLI::ParseError& error) {
      console_.err << "talvorctl\u00A0: " << Refusal(app_, error)
                   << " (voir «\u00A0talvorctl --help\u00A0»)\n";
      return WrongUsage;
    }
    const auto* analyse = app_.get_subcommand("analyser");
    if (batch_ && analyse->count_all() > 2) {  // the command itself and --lot
      console_.err
          << "talvorctl\u00A0: --lot ne va avec aucune autre option (voir «\u00A0talvorctl --help\u00A0»)\n";
      return WrongUsage;
    }
    return command_();
  }

 private:
  static CLI::App* AddTo(CLI::App& parent, const char* name, const char* description) {
    CLI::App* sub = parent.add_subcommand(name, description);
    sub->group("Commandes ");
    sub->get_help_ptr()->group("Options ");
    return sub;
  }

  CLI::App* Add(const char* name, const char* description, std::function<ExitCode()> command) {
    return Add(app_, name, description, std::move(command));
  }

  CLI::App* Add(CLI::App& parent, const char* name, const char* description,
                std::function<ExitCode()> command) {
    CLI::App* sub = AddTo(parent, name, description);
    sub->callback([this, command = std::move(command)] { command_ = command; });
    return sub;
  }

  void AddPreparer() {
    Add("preparer", "Met en place le dossier de données, sans rien écraser",
        [this] { return Preparer(workspace_, console_); });
  }

  void AddAnalyser() {
    CLI::App* sub = Add("analyser", "Analyse une annonce et en donne les champs en JSON",
                        [this] { return batch_ ? AnalyserLot(console_) : Analyser(analyse_, console_); });
    sub->add_option("fichier", analyse_.file,
                    "Texte UTF-8 de l’annonce, «\u00A0-\u00A0» pour l’entrée standard")
        ->type_name("FICHIER");
    sub->add_option("--adresse", analyse_.address, "Adresse de la page")->type_name("URL");
    sub->add_option("--date", analyse_.date, "Date du jour")->type_name("JJ/MM/AAAA");
    sub->add_option("--initial", analyse_.initial, "Champs déjà remplis")->type_name("F.json");
    sub->add_flag("--decoller", analyse_.unglue, "Sépare les mots collés d’une page");
    sub->add_flag("--brut", analyse_.raw, "Laisse les fins de ligne telles quelles");
    sub->add_flag(
        "--lot", batch_,
        "Lit des enregistrements JSON, un par ligne, sur l’entrée standard\u00A0; seule, cette option "
        "ne va avec aucune autre");
  }

  void AddEvaluer() {
    CLI::App* sub = Add("evaluer", "Dit en JSON à quel point une page ressemble à une annonce",
                        [this] { return Evaluer(capture_.file, capture_.address, console_); });
    sub->add_option("fichier", capture_.file,
                    "Texte UTF-8 de la page, «\u00A0-\u00A0» pour l’entrée standard")
        ->type_name("FICHIER")
        ->required();
    sub->add_option("--adresse", capture_.address, "Adresse de la page")->type_name("URL");
  }

  void AddCapturer() {
    CLI::App* sub = Add("capturer", "Analyse une annonce, l’enregistre et donne son numéro",
                        [this] { return Capturer(workspace_, capture_, console_); });
    sub->add_option("fichier", capture_.file,
                    "Texte UTF-8 de l’annonce, «\u00A0-\u00A0» pour l’entrée standard")
        ->type_name("FICHIER")
        ->required();
    sub->add_option("--adresse", capture_.address, "Adresse de la page")->type_name("URL");
  }

  void AddCandidatures() {
    CLI::App* sub = Add("candidatures", "Liste les candidatures par groupe",
                        [this] { return Candidatures(workspace_, tri_, json_, console_); });
    sub->add_option("--tri", tri_, "societes, dates, statuts ou origine")
        ->type_name("TRI")
        ->check(CLI::IsMember({"societes", "dates", "statuts", "origine"}));
    sub->add_flag("--json", json_, "En JSON");
  }

  void AddCandidature() {
    CLI::App* sub = Add("candidature", "Montre une candidature",
                        [this] { return UneCandidature(workspace_, num_, json_, console_); });
    sub->add_option("num", num_, "Numéro de la candidature")->type_name("NUM")->required();
    sub->add_flag("--json", json_, "En JSON");
  }

  void AddRapport() {
    CLI::App* sub = Add("rapport", "Écrit la page HTML de la liste ou du justificatif de recherche d’emploi",
                        [this] { return Rapport(workspace_, report_, console_); });
    sub->add_option("rapport", report_, "liste ou justificatif")
        ->type_name("RAPPORT")
        ->required()
        ->check(CLI::IsMember({"liste", "justificatif"}));
  }

  void AddStatistiques() {
    CLI::App* sub = Add("statistiques", "Compte les candidatures par statut et liste les entretiens à venir",
                        [this] { return Statistiques(workspace_, json_, console_); });
    sub->add_flag("--json", json_, "En JSON");
  }

  void AddLettre() {
    CLI::App* lettre = AddTo(app_, "lettre", "Compose et fusionne les modèles de lettre");
    lettre->require_subcommand(1);

    CLI::App* sub = Add(*lettre, "composer", "Compose un modèle de lettre et en donne le texte en JSON",
                        [this] { return LettreComposer(compose_, console_); });
    sub->add_option("fichier", compose_.file, "Fichier du modèle")->type_name("F.dat")->required();
    sub->add_option("--date", compose_.date, "Date du jour")->type_name("JJ/MM/AAAA");

    sub = Add(*lettre, "fusionner", "Fusionne un modèle avec une candidature et donne la lettre en JSON",
              [this] { return LettreFusionner(merge_, console_); });
    sub->add_option("fichier", merge_.file, "Fichier du modèle")->type_name("F.dat")->required();
    sub->add_option("candidature", merge_.candidature,
                    "Champs de la candidature en JSON, «\u00A0-\u00A0» pour l’entrée standard")
        ->type_name("CAND.json")
        ->required();
    sub->add_option("--date", merge_.date, "Date du jour")->type_name("JJ/MM/AAAA");
  }

  void AddCv() {
    CLI::App* cv = AddTo(app_, "cv", "Met un CV en page, lit un bloc d’identité");
    cv->require_subcommand(1);
    CLI::App* render =
        Add(*cv, "rendre", "Donne la page d’un CV, en UTF-8", [this] { return RendreCv(render_, console_); });
    render->add_option("fichier", render_.file, "CV de Talvor")->type_name("F.dat")->required();
    render->add_option("--modele", render_.model, "Modèle de la page")->type_name("M.htm")->required();
    render->add_flag("--photo", render_.photo, "Met la photo Photo.jpg à sa place");
    CLI::App* convert = Add(*cv, "convertir", "Écrit un CV en .doc, .docx, .odt ou .pdf",
                            [this] { return ConvertirCv(workspace_, convert_, console_); });
    convert->add_option("fichier", convert_.file, "CV de Talvor")->type_name("F.dat")->required();
    convert->add_option("--vers", convert_.target, "Document à écrire")->type_name("DOCUMENT")->required();
    CLI::App* identity = Add(*cv, "identite", "Donne en JSON les champs d’un bloc d’identité",
                             [this] { return IdentiteCv(identity_, console_); });
    identity->add_option("fichier", identity_, "Texte UTF-8 du bloc, «\u00A0-\u00A0» pour l’entrée standard")
        ->type_name("FICHIER")
        ->required();
  }

  void AddSauvegarde() {
    Add("sauvegarder", "Copie le dossier de données dans un autre dossier",
        [this] { return Sauvegarder(workspace_, folder_, console_); })
        ->add_option("dossier", folder_, "Dossier qui reçoit la copie")
        ->type_name("DOSSIER")
        ->required();
    Add("restaurer", "Reprend les données d’une copie\u00A0; ce qu’elle remplace reste dans Sauvegardes",
        [this] { return Restaurer(workspace_, folder_, console_); })
        ->add_option("dossier", folder_, "Dossier de la copie")
        ->type_name("DOSSIER")
        ->required();
  }

  Console& console_;
  CLI::App app_{"Talvor en ligne de commande\u00A0: annonces, candidatures et dossier de données."};
  std::function<ExitCode()> command_;

  std::string workspace_;
  AnalyseOptions analyse_;
  bool batch_ = false;
  CaptureOptions capture_;
  ComposeOptions compose_;
  MergeOptions merge_;
  std::string tri_ = "statuts";
  bool json_ = false;
  std::int32_t num_ = 0;
  std::string report_;
  RenderOptions render_;
  ConvertOptions convert_;
  std::string identity_;
  std::string folder_;
};

}  // namespace

ExitCode RunCommandLine(std::vector<std::string> arguments, Console& console) {
  try {
    return CommandLine(console).Run(std::move(arguments));
  } catch (const CommandError& error) {
    console.err << "talvorctl\u00A0: " << error.what() << '\n';
  } catch (const StoreError& error) {
    console.err << "talvorctl\u00A0: " << error.what() << '\n';
  } catch (const std::filesystem::filesystem_error& error) {
    console.err << "talvorctl\u00A0: " << ToUtf8(ReportOf(error)) << '\n';
  } catch (const std::bad_alloc&) {
    console.err << "talvorctl\u00A0: la mémoire est insuffisante\n";
  }
  return Refused;
}

}  // namespace talvor::cli
