#include "ads/analyser.h"

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

#include "ads/contracts.h"

namespace talvor {
namespace {

constexpr CivilDate Today{2007, 3, 15};

AdFields Analysed(TextView advertisement, AdFields record = {}, Text address = Text{BlankPage}) {
  AdContext context;
  context.address = std::move(address);
  context.today = *DayOf(Today);
  Text texte{advertisement};
  AnalyserAnnonce(texte, record, context);
  return record;
}

// An advertisement, the field that is looked at, and what it must hold. Rows whose advertisement has no
// line end behind the keyword are failures of the run on purpose.
struct Reading {
  const char* reason;
  Text advertisement;
  Text AdFields::* field;
  Text expected;
  friend void PrintTo(const Reading& row, std::ostream* out) { *out << row.reason; }
};

class Readings : public testing::TestWithParam<Reading> {};

TEST_P(Readings, FillTheField) {
  const AdFields record = Analysed(GetParam().advertisement);
  EXPECT_EQ(ToUtf8(record.*(GetParam().field)), ToUtf8(GetParam().expected)) << GetParam().reason;
}

using A = AdFields;

INSTANTIATE_TEST_SUITE_P(
    Title, Readings,
    testing::Values(
        Reading{"a job word with an S begins it, H/F ends it", u"Ingénieurs commerciaux (H/F)\r\nLyon",
                &A::Intitule, u"Ingenieurs Commerciaux"},
        Reading{"a torn apostrophe is mended", u"Responsable d'agence H/F - Lyon\r\n", &A::Intitule,
                u"Responsable d'Agence"},
        Reading{"a feminine ending goes", u"Assistant(e) de direction\r\nx", &A::Intitule,
                u"Assistant De Direction"},
        Reading{"the longer feminine ending goes, too", u"Un boulanger(ère) de nuit\r\nx", &A::Intitule,
                u"Boulanger De Nuit"},
        Reading{"what stands before it on the line is lost", u"Recherche un VENDEUR confirmé\r\nx",
                &A::Intitule, u"Vendeur Confirme"},
        Reading{"a dash ends the line", u"Comptable - Paris\r\nx", &A::Intitule, u"Comptable"},
        Reading{"a word of a slash is cut behind its fifth letter", u"Informaticien/ne réseaux\r\nx",
                &A::Intitule, u"Informaticien Reseaux"},
        Reading{"a feminine form is no job word", u"Acheteuse\r\nx", &A::Intitule, u""},
        Reading{"three letters are too short", u"PDG groupe\r\nx\r\nx", &A::Intitule, u""},
        Reading{"the first one closes the rule", u"Caissier\r\nVendeur\r\nx", &A::Intitule, u"Caissier"},
        Reading{"a long one is cut at a word", u"Technicien de maintenance industrielle des ascenseurs\r\nx",
                &A::Intitule, u"Technicien De Maintenance"},
        Reading{"without a line end the run ends before the repairs", u"Assistant(e) de direction",
                &A::Intitule, u"Assistant E De Direction "}));

INSTANTIATE_TEST_SUITE_P(
    Contract, Readings,
    testing::Values(
        Reading{"CDI beats CDD", u"CDD puis CDI\r\n", &A::Nature, Text{ListeContrats[0]}},
        Reading{"the term alone", u"Mission d'intérim\r\n", &A::Nature, u"INTERIM"},
        Reading{"a term inside a longer word counts", u"accdde\r\n", &A::Nature, Text{ListeContrats[1]}},
        Reading{"a second term of the row", u"contrat à durée déterminée\r\n", &A::Nature,
                Text{ListeContrats[1]}},
        Reading{"a term does not run over a line end", u"contrat à durée\r\ndéterminée\r\n", &A::Nature, u""},
        Reading{"a rare contract without any CONTRAT in the text", u"emploi non salarié\r\n", &A::Nature,
                u"EMPLOI NON SALARIE"},
        Reading{"the correct spelling is not searched for", u"intermittent\r\n", &A::Nature, u""}));

INSTANTIATE_TEST_SUITE_P(
    Email, Readings,
    testing::Values(
        Reading{"the address between blanks", u"écrire à jean.dupont@acme.fr svp", &A::Email,
                u"jean.dupont@acme.fr"},
        Reading{"its domain is the company", u"écrire à jean.dupont@acme.fr svp\r\n", &A::Societe, u"ACME"},
        Reading{"its name is the contact", u"écrire à jean.dupont@acme.fr svp\r\n", &A::NomContact,
                u"Jean Dupont"},
        Reading{"a full stop behind it stays with it", u"à a.b@acme.fr. Merci", &A::Email, u"a.b@acme.fr."},
        Reading{"a comma and a plus sign end it", u"à x+a.b@acme.fr, merci", &A::Email, u"a.b@acme.fr"},
        Reading{"a colon and an angle do not", u"à <mailto:a@b.fr> ou", &A::Email, u"<mailto:a@b.fr>"},
        Reading{"accents and curled quotes have high codes", u"à ’é.b@acme.fr’ ou", &A::Email,
                u"’é.b@acme.fr’"},
        Reading{"the last character of the text never joins it", u"à a.b@acme.fr", &A::Email, u"a.b@acme.f"},
        Reading{"an address at the very start ends the run", u"jean@acme.fr\r\n", &A::Email, u"jean@"},
        Reading{"an at-sign at the very end ends the run", u"écrire à jean@", &A::Email, u"jean@"},
        Reading{"without a full stop there is no address", u"venez @ Lyon svp", &A::Email, u""},
        Reading{"a domain without a full stop ends the run with the domain", u"à j.d@Acme svp\r\n",
                &A::Societe, u"Acme"},
        Reading{"a mail host names no company, the contact stands in", u"à jean.dupont@free.fr svp\r\n",
                &A::Societe, u"Jean Dupont"},
        Reading{"a part of a mail host names none either", u"à jean.dupont@range.fr svp\r\n", &A::Societe,
                u"Jean Dupont"},
        Reading{"a role address at a mail host leaves its blank", u"à job@free.fr svp\r\n", &A::Societe,
                u" "}));

INSTANTIATE_TEST_SUITE_P(
    Company, Readings,
    testing::Values(
        Reading{"the label's own line", u"Société : Acme France\r\nx", &A::Societe, u"ACME FRANCE "},
        Reading{"the line below the label", u"Entreprise :\r\n\r\nAcme\r\nx", &A::Societe, u"ACME "},
        Reading{"behind an application's address", u"envoyer candidature à Acme\r\nx", &A::Societe, u"ACME "},
        Reading{"a date behind the label is no name", u"Société 12/03/2007\r\nx", &A::Societe, u""},
        Reading{"a sentence is no name and the rule stays open",
                u"Société : Le client est là\r\nSociété Acme\r\nx", &A::Societe, u"ACME "},
        Reading{"a label inside a sentence reads the rest of it",
                u"Société dans une société pour le bois\r\nx", &A::Societe, u""},
        Reading{"but not the word behind the last filter word", u"Société dans une société du\r\nx",
                &A::Societe, u"DU "},
        Reading{"a subject of EST names it when nothing else does", u"Acme est un leader\r\n", &A::Societe,
                u"ACME"},
        Reading{"n'est names nothing", u"il n'est pas là\r\n", &A::Societe, u""},
        Reading{"a group is three words and the last hit stands",
                u"Acme est là\r\nle groupe Durand Frères recrute\r\n", &A::Societe, u"GROUPE DURAND FRERES"},
        Reading{"without a line end the reading runs off the text", u"Société : Acme", &A::Societe, u"ACME "},
        Reading{"a sentence without a line end stands whole, the run being over",
                u"Société dans une rue de Lyon", &A::Societe, u"DANS UNE RUE DE LYON "}));

INSTANTIATE_TEST_SUITE_P(
    Contact, Readings,
    testing::Values(Reading{"the last form of address decides", u"Contact : Mme Durand 01 42 33 44 55\r\nx",
                            &A::NomContact, u"Durand "},
                    Reading{"a sentence empties it", u"M. Martin\r\nun vrai contact client, ici\r\nx",
                            &A::NomContact, u""},
                    Reading{"DE makes a sentence", u"M. Pierre de Lyon\r\nx", &A::NomContact, u""},
                    Reading{"madame is no trigger", u"Madame Durand\r\nx y", &A::NomContact, u""},
                    Reading{"an application handed on", u"transmise à Paul Petit\r\nx", &A::NomContact,
                            u"Paul Petit "},
                    Reading{"nothing is read at the last word, one blank stays", u"x\r\nMme Durand",
                            &A::NomContact, u" "},
                    Reading{"words behind it are read before the slash cut", u"Mme Dupontel/Durandet\r\nx",
                            &A::NomContact, u"Dupontel/durandet "},
                    Reading{"it stands when a later word ends the run", u"Mme Durand\r\nSalaire",
                            &A::NomContact, u"Durand "}));

INSTANTIATE_TEST_SUITE_P(
    Telephone, Readings,
    testing::Values(
        Reading{"behind its label", u"TEL : 01.42.33.44.55\r\nx", &A::Telephone, u"01 42 33 44 55 "},
        Reading{"OU ends it", u"Tél 01 42 33 44 55 ou 06 11 22 33 44\r\nx", &A::Telephone,
                u"01 42 33 44 55 "},
        Reading{"a name is thrown away, the number found later",
                u"Tél. :\r\nM. Durand\r\nau bureau 01 42 33 44 55\r\nx", &A::Telephone, u"01 42 33 44 55"},
        Reading{"five numbers without a label", u"vous pouvez nous joindre chaque jour 06 11 22 33 44\r\nx",
                &A::Telephone, u"06 11 22 33 44"},
        Reading{"not within the first six words", u"06 11 22 33 44\r\nx", &A::Telephone, u""},
        Reading{"a group of zeros breaks the run",
                u"vous pouvez nous joindre chaque jour 06 00 22 33 44\r\nx", &A::Telephone, u""},
        Reading{"zeros alone have no value", u"Tél 0 00\r\nx", &A::Telephone, u""}));

INSTANTIATE_TEST_SUITE_P(
    PlaceSalaryDuration, Readings,
    testing::Values(
        Reading{"the label's tail is left out", u"Lieu de travail :\r\nParis (75)\r\nx", &A::Lieu,
                u"Paris 75 "},
        Reading{"LOCALISER ends a place", u"Localisation : Lyon Localiser sur la carte\r\nx", &A::Lieu,
                u"Lyon "},
        Reading{"based at", u"poste basé à Nantes\r\nx", &A::Lieu, u"Nantes "},
        Reading{"LIEU beats a full field no more", u"Lieu : Lyon\r\nLieu : Paris\r\nx", &A::Lieu, u"Lyon "},
        Reading{"a pay", u"Rémunération : 30 KE\r\nx", &A::Salaire, u"30 Ke "},
        Reading{"an indicative one", u"Salaire indicatif : 2000 euros\r\nx", &A::Salaire, u"2000 Euros "},
        Reading{"a rate", u"Taux horaire\r\nx", &A::Salaire, u"Horaire "},
        Reading{"less than three characters go on to the next line", u"Salaire : 9\r\n10 euros\r\nx",
                &A::Salaire, u"9 10 Euros "},
        Reading{"an intended duration", u"Durée envisagée : 4 mois\r\nx", &A::Duree, u"4 MOIS "},
        Reading{"a duration alone is no trigger", u"Durée : 4 mois\r\nx", &A::Duree, u""}));

INSTANTIATE_TEST_SUITE_P(
    ReferenceAndDate, Readings,
    testing::Values(
        Reading{"eight characters are a whole one", u"Réf : AB12345678 suite\r\nx", &A::Reference,
                u"AB12345678 "},
        Reading{"a short one takes the line", u"Réf : AB 12 C\r\nx", &A::Reference, u"AB 12 C "},
        Reading{"the words of its label are skipped", u"Référence de l'offre : 1234\r\nx", &A::Reference,
                u"1234 "},
        Reading{"a label that leaves no word ends the run", u"x\r\nRéférence de l'", &A::Reference, u""},
        Reading{"an offer's number", u"numéro d'offre 77 b\r\nx", &A::Reference, u"77 B "},
        Reading{"a preference counts as well and the last one stands",
                u"Réf 1234 b\r\nde préférence bilingue\r\nx", &A::Reference, u"BILINGUE "},
        Reading{"the word before the last is not taken", u"Réf ABCD EFGH", &A::Reference, u"ABCD "},
        Reading{"a date of this year, as it stands", u"mise à jour 12/03/2007 et 13/03/2007\r\n",
                &A::DateDiffusion, u"12/03/2007"},
        Reading{"a date of last year", u"mise à jour 12/03/2006\r\n", &A::DateDiffusion, u""},
        Reading{"a year in two digits", u"mise à jour 12/03/07\r\n", &A::DateDiffusion, u""},
        Reading{"no date at all", u"avant 31/02/2007\r\n", &A::DateDiffusion, u""}));

INSTANTIATE_TEST_SUITE_P(
    PostalCode, Readings,
    testing::Values(
        Reading{"a street in front of it", u"au 12 rue de la Paix 75002 PARIS\r\nx", &A::Adresse,
                u"12 Rue De La Paix "},
        Reading{"the town behind it", u"au 12 rue de la Paix 75002 PARIS\r\nx", &A::Ville, u"PARIS"},
        Reading{"a composed town", u"place Dalton 62200 Boulogne-sur-Mer cedex\r\nx", &A::Ville,
                u"BOULOGNE SUR MER"},
        Reading{"a cedex with its number", u"12 rue de la Paix 75002 Paris cedex 08\r\nx", &A::Ville,
                u"PARIS CEDEX 08"},
        Reading{"a code at the end of its line", u"12 rue de la Paix 75002\r\nx y", &A::Ville, u"."},
        Reading{"no street, no code", u"poste à 75002 Paris\r\nx", &A::CP, u""},
        Reading{"a street eight words before", u"rue a b c d e f g 75002 Paris\r\nx", &A::CP, u""},
        Reading{"a street on the line above counts", u"le siège\r\n14 rue Haute\r\n75002 Paris\r\nx",
                &A::Adresse, u"14 Rue Haute "},
        Reading{"a short line takes the one above", u"x\r\nAcme Industries\r\nZI Sud\r\n75002 Paris\r\nx",
                &A::Adresse, u"Acme Industries Zi Sud "},
        Reading{"a post box stands alone in capitals",
                u"le siège social\r\nimmeuble Acme BP 12\r\n75002 Paris\r\nx", &A::Adresse, u"BP 12 "},
        Reading{"behind a number it is cased like the rest",
                u"le siège\r\n3 immeuble Acme BP 12\r\n75002 Paris\r\nx", &A::Adresse,
                u"3 Immeuble Acme Bp 12 "},
        Reading{"at the start of the text the loop runs off", u"BP 12 44000 NANTES CEDEX 01\r\n", &A::Adresse,
                u" BP 12 "},
        Reading{"and the town stands", u"BP 12 44000 NANTES CEDEX 01\r\n", &A::Ville, u"NANTES CEDEX 01"},
        Reading{"a missing word behind the link ends the run", u"1 rue Haute 44000 NANTES CEDEX", &A::Ville,
                u"NANTES"}));

TEST(AnalyserCuts, StartAtTheMarkBeforeH_F) {
  const auto description = [](std::size_t furniture, TextView before) {
    return Analysed(Text(furniture, u'x') + Text{before} + u"Maçon H/F\r\nfin\r\n").Description;
  };
  // "H/F" behind 93 + 6 characters stands at position 100, and with one more at 101.
  EXPECT_EQ(description(93, u"").size(), 93u + 9u + 7u);
  EXPECT_EQ(description(94, u""), Text(85, u'x') + u"Maçon H/F\r\nfin\r\n") << "back to position 10";
  EXPECT_EQ(description(200, u":"), u":Maçon H/F\r\nfin\r\n");
  EXPECT_EQ(description(200, u"\r\n"), u"\r\nMaçon H/F\r\nfin\r\n");
}

TEST(AnalyserCuts, EndAtMarkersInForceBehindPosition100) {
  AdContext context{.TermFin = u"2Jamais\r\n1Fin\r\n1Deux\r\n", .today = *DayOf(Today)};
  const auto description = [&](std::size_t before, TextView rest) {
    Text texte = Text(before, u'x') + Text{rest};
    AdFields record;
    AnalyserAnnonce(texte, record, context);
    return record.Description.size();
  };
  EXPECT_EQ(description(99, u"Fin de l'annonce"), 99u + 16u) << "position 100 is ignored";
  EXPECT_EQ(description(100, u"Fin de l'annonce"), 100u);
  EXPECT_EQ(description(100, u"Jamais lu"), 109u) << "a row of another digit";
  EXPECT_EQ(description(100, u" Deux Fin"), 101u) << "each row works on what is left";
  context.TermFin.clear();
  EXPECT_EQ(description(100, u"Fin"), 103u);
}

TEST(AnalyserCuts, TheDescriptionBeginsAtTheTitleAndKeepsItsCase) {
  EXPECT_EQ(Analysed(u"Accueil - Menu\r\n\r\nMaçon ou Électricien\r\n\r\n\r\nfin\r\n").Description,
            u"Électricien\r\n\r\nfin\r\n");
  EXPECT_EQ(Analysed(u"Un métier\r\nCaissier\r\nx").Description, u"Caissier\r\nx") << "at position 12";
  EXPECT_EQ(Analysed(u"Le poste\r\nCaissier\r\nx").Description, u"Caissier\r\nx") << "at position 11";
  EXPECT_EQ(Analysed(u"Le job\r\nCaissier\r\nx").Description, u"Le job\r\nCaissier\r\nx") << "at position 9";
}

struct Origin {
  const char* reason;
  Text address;
  AdFields before;
  Text origin;
  friend void PrintTo(const Origin& row, std::ostream* out) { *out << row.reason; }
};

class Origins : public testing::TestWithParam<Origin> {};

TEST_P(Origins, AreTheSiteWithoutItsFirstLabel) {
  EXPECT_EQ(Analysed(u"x\r\n", GetParam().before, GetParam().address).Origine, GetParam().origin)
      << GetParam().reason;
}

INSTANTIATE_TEST_SUITE_P(
    Addresses, Origins,
    testing::Values(
        Origin{"a host with its decorations", u"http://www.emploi-acme.fr/offre/1", {}, u"ACME"},
        Origin{"the first label goes whatever it is", u"https://acme.com/x", {}, u"COM"},
        Origin{"a bare numeric host is told by its name", u"http://203.0.113.77/offre/1", {}, u"Le Rucher"},
        Origin{"no slash behind the host ends the run", u"http://www.acme.fr", {}, u"acme.fr"},
        Origin{"no full stop takes it all", u"localhost/x", {}, u"LOCALHOST"},
        Origin{"a blank browser is no site", u"about:blank", {.Societe = u"Acme"}, u"Acme"},
        Origin{"an empty address is not a blank browser", u"", {.Societe = u"Acme"}, u""},
        Origin{"a filled address is left alone", u"http://www.acme.fr/", {.www = u"http://b/"}, u""},
        Origin{"a filled origin as well", u"http://www.acme.fr/", {.Origine = u"Presse"}, u"Presse"}));

TEST(Analyser, AFilledFieldKeepsWhatItHoldsButForTheRulesThatOverwrite) {
  AdFields before;
  for (const auto& field : AdFieldTable) before.*(field.text) = u"déjà";
  const AdFields after = Analysed(
      u"Maçon ou Caissier\r\nSociété : Acme\r\nLieu : Lyon\r\nSalaire : 2000\r\nCDI\r\nContact : Mme "
      u"Durand\r\n"
      u"Réf : 4321\r\nTél : 01 42 33 44 55\r\n12/03/2007\r\n1 rue Haute 75002 Paris\r\na.b@acme.fr\r\n",
      before, u"http://www.acme.fr/");
  for (const auto& field : AdFieldTable) {
    const bool overwritten =
        field.name == u"Description" || field.name == u"NomContact" || field.name == u"Reference";
    EXPECT_EQ(after.*(field.text) == u"déjà", !overwritten) << ToUtf8(field.name);
  }
  before.CP.clear();
  EXPECT_EQ(Analysed(u"au 1 rue Haute 75002 Paris\r\nx", before).Adresse, u"1 Rue Haute Déjà")
      << "an address grows in front";
}

TEST(Analyser, AnEmptyTextStillRunsTheFinishing) {
  const AdFields record = Analysed(u"", {}, u"http://www.acme.fr/");
  EXPECT_EQ(record.Origine, u"ACME");
  EXPECT_EQ(record.Societe, u"ACME");
  EXPECT_EQ(record.Description, u"");
}

TEST(Analyser, TheTextComesBackAsItsNormalForm) {
  Text texte = u"Maçon - Lyon\r\n";
  AdFields record;
  AnalyserAnnonce(texte, record, {});
  EXPECT_EQ(texte, u"MA ON . LYON .");
}

// Each of these would take hours if a keyword read its line anew every time it stands there.
TEST(Analyser, EndlessLinesOfKeywordsStayQuick) {
  for (const TextView word :
       {u"SOCIETE ", u"SOCIETE LE ", u"M ", u"REF ", u"TEL ", u"TEL 0 ", u"0 ", u"CANDIDATURE A ",
        u"LIEU LOCALISER ", u"A@", u"RUE 75001 ", u"H/F ", u"GROUPE EST "}) {
    Text endless;
    while (endless.size() < 500'000) endless += word;
    Analysed(endless);
    Analysed(endless + u"LE\r\nx");
    Analysed(u"TEL " + endless + u"\r\nx");
  }
  Analysed(u"rue " + Text(200'000, u'x') + u" " + ReplaceAll(Text(200'000, u'y'), u"yy", u"y ") +
           u"rue 75001 Paris\r\nx");
}

}  // namespace
}  // namespace talvor
