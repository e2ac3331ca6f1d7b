// Writes random advertisements as JSON Lines, made to hit the analyser's rules hard.
// Usage: random_ads COUNT SEED

#include <array>
#include <cstdlib>
#include <iostream>
#include <nlohmann/json.hpp>
#include <random>
#include <string>

namespace {

// Labels, keywords, link words and the odd sign, each where a rule looks.
constexpr std::array Pieces{"Société :",
                            "Entreprise",
                            "candidature à",
                            "Acme France",
                            "le client",
                            "votre contact",
                            "DU",
                            "L",
                            "est",
                            "n'est",
                            "groupe",
                            "Lieu",
                            "de travail",
                            "Localisation",
                            "localiser",
                            "basé à",
                            "Paris",
                            "Lyon",
                            "Salaire",
                            "indicatif",
                            "Rémunération",
                            "taux",
                            "30 KE",
                            "2 000 euros",
                            "Tél.",
                            "PH",
                            "téléphone",
                            "ou",
                            "01 42 33 44 55",
                            "06.11.22.33.44",
                            "00",
                            "0",
                            "Durée envisagée",
                            "4 mois",
                            "durée",
                            "Référence",
                            "de l'offre",
                            "préférence",
                            "d'offre",
                            "Réf",
                            "AB12345678",
                            "1234",
                            "Contact",
                            "M.",
                            "Mr",
                            "Mme",
                            "Mlle",
                            "MLE",
                            "monsieur",
                            "Durand",
                            "transmise à",
                            "H/F",
                            "(H/F)",
                            "h/f",
                            " - ",
                            "jean.dupont@acme.fr",
                            "recrutement@free.fr",
                            "@",
                            "a@b",
                            "x@y.",
                            ".@.",
                            "rue",
                            "12 rue de la Paix",
                            "BP 12",
                            "ZI",
                            "75002",
                            "44000 NANTES",
                            "CEDEX 08",
                            "sur mer",
                            "les Bains",
                            "12/03/2007",
                            "31/12/2006",
                            "2007",
                            "Informaticien/ne",
                            "comptable/gestionnaire",
                            "Ingénieurs",
                            "assistant(e)",
                            "Maçon",
                            "vendeur",
                            "d'agence",
                            "boulanger(ère)",
                            "CDI",
                            "CDD",
                            "intérim",
                            "contrat à durée déterminée",
                            "saisonnier",
                            "Offre suivante >>",
                            "Réduire la fenêtre",
                            "😀",
                            "\u00A0",
                            "€",
                            "’",
                            "\t",
                            ":",
                            ",",
                            ".",
                            "/",
                            "&H1F",
                            "1E5",
                            "ß",
                            "Ç",
                            "—"};

constexpr std::array LineEnds{"\r\n", "\r\n", "\r\n", "\r\n\r\n", "\r", "\n", " ", "  "};
constexpr std::array Addresses{"about:blank",     "",           "http://www.emploi-acme.fr/offre/12",
                               "http://acme.com", "localhost/", "https://a.b.c.net/x/y"};

class Writer {
 public:
  explicit Writer(unsigned seed) : random_(seed) {}

  nlohmann::ordered_json Record() {
    nlohmann::ordered_json record;
    record["texte"] = Advertisement();
    if (Chance(2)) record["adresse"] = Pick(Addresses);
    record["date"] = Chance(2) ? "15/03/2007" : "01/01/2006";
    if (Chance(6))
      record["initial"] = {{"Societe", Pick(Pieces)}, {"Adresse", Pick(Pieces)}, {"Intitule", Pick(Pieces)}};
    if (Chance(8)) record["termfin"] = "1" + std::string{Pick(Pieces)} + "\r\n2" + Pick(Pieces) + "\r\n1";
    return record;
  }

 private:
  // True once in `in` times.
  bool Chance(unsigned in) { return Below(in) == 0; }
  std::size_t Below(std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>{0, limit - 1}(random_);
  }

  template <class Row, std::size_t N>
  const char* Pick(const std::array<Row, N>& rows) {
    return rows[Below(N)];
  }

  std::string Advertisement() {
    std::string text;
    if (Chance(4)) text.append(80 + Below(40), 'x');  // around the position where cuts begin
    const std::size_t pieces = Chance(20) ? 600 : Below(60);
    for (std::size_t i = 0; i < pieces; ++i) {
      text += Pick(Pieces);
      if (!Chance(12)) text += Chance(4) ? Pick(LineEnds) : " ";
      if (Chance(300)) text.append(1000 + Below(1200), ' ');  // more blanks than ten rounds reduce to one
    }
    if (Chance(2)) text += "\r\n";
    return text;
  }

  std::mt19937 random_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: random_ads COUNT SEED\n";
    return 2;
  }
  Writer writer(static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)));
  for (long left = std::strtol(argv[1], nullptr, 10); left > 0; --left)
    std::cout << writer.Record().dump() << '\n';
}
