#include "cv/renderer.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

#include "cv/identity_on_page.h"
#include "cv/vocabulary.h"

namespace talvor {
namespace {

Text Fill(const CvDocument& cv, TextView page) { return FillTemplate(cv, Text{page}, PhotoOnPage::None); }

struct Shown {
  TextView field, value, firstName, page;
  friend void PrintTo(const Shown& row, std::ostream* out) {
    *out << ToUtf8(row.field) << ' ' << ToUtf8(row.value);
  }
};

class IdentityFieldsOnPage : public testing::TestWithParam<Shown> {};

TEST_P(IdentityFieldsOnPage, TakeTheirWords) {
  CvDocument cv;
  cv.Prenom = GetParam().firstName;
  EXPECT_EQ(IdentityOnPage(cv, GetParam().field, GetParam().value), GetParam().page);
}

INSTANTIATE_TEST_SUITE_P(
    Renderer, IdentityFieldsOnPage,
    testing::Values(Shown{u"DateNaissance", u"12/03/1975", u"Noémie", u"Née le 12/03/1975"},
                    Shown{u"DateNaissance", u"12/03/1975", u"Marion", u"Né le 12/03/1975"},
                    Shown{u"DateNaissance", u"", u"Noémie", u""},
                    Shown{u"Situation", u"Marié(e)", u"Anne", u"Mariée"},
                    Shown{u"Situation", u"Marié(e)", u"Louis", u"Marié"},
                    Shown{u"Situation", u"Divorcé(e)", u"Anne", u"Divorcée"},
                    Shown{u"Situation", u"Divorcé(e)", u"", u"Divorcé"},
                    Shown{u"Situation", u"Veuf(ve)", u"Anne", u"Veuf(ve)"},
                    Shown{u"LieuNaissance", u"Lyon", u"", u"à Lyon"},
                    Shown{u"Tel", u"01", u"", u"Téléphone : 01"}, Shown{u"Tel", u"", u"", u""},
                    Shown{u"Mob", u"06", u"", u"Mobile : 06"}, Shown{u"Age", u"35", u"", u"(35 ans)"},
                    Shown{u"NbEnfants", u"", u"", u""}, Shown{u"NbEnfants", u"0", u"", u"0"},
                    Shown{u"NbEnfants", u"1", u"", u"1 enfant"}, Shown{u"NbEnfants", u"2", u"", u"2 enfants"},
                    Shown{u"NbEnfants", u"deux", u"", u"deux"},
                    Shown{u"Divers", u"a\r\n\r\nb\nc", u"", u"a<br><br>b\nc"}));

TEST(LanguageSummary, ListsTheLevelsOfEachLanguageInTheirOrder) {
  CvDocument cv;
  EXPECT_EQ(LanguageSummary(cv), u"");
  cv.LangueBilingue[8] = cv.LangueScolaire[0] = cv.LangueProf[0] = cv.LangueCourant[0] = true;
  cv.LanguesPlus = u"  ";
  const Text list = u"Anglais scolaire\r\nAnglais professionnel\r\nAnglais courant\r\nSuédois bilingue\r\n";
  EXPECT_EQ(LanguageSummary(cv), list);
  cv.LanguesPlus = u" Un an à Londres";
  EXPECT_EQ(LanguageSummary(cv), list + u"\r\n Un an à Londres");
}

constexpr TextView Sections = u"(P01e#Etudes#P02fP03xP04cP05lP06dP07)";

struct Page {
  const char* reason;
  std::vector<TextView> filled;  // names of the fields that hold «.»
  bool senior;
  TextView page, result;
  friend void PrintTo(const Page& row, std::ostream* out) { *out << row.reason; }
};

class Pages : public testing::TestWithParam<Page> {};

TEST_P(Pages, LoseTheirEmptySectionsAndTakeTheirOrder) {
  CvDocument cv;
  cv.Gras = u"0";
  for (const TextView name : GetParam().filled) cv.*(FindField(CvFields, name)->text) = u".";
  cv.CheckDisposition[1] = GetParam().senior;
  EXPECT_EQ(Fill(cv, GetParam().page), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Renderer, Pages,
    testing::Values(
        Page{"all sections filled",
             {u"Etudes", u"Formations", u"Experiences", u"Competences", u"Langues", u"Divers"},
             false,
             Sections,
             u"(e.fxcld)"},
        Page{"all sections empty", {}, false, Sections, u"()"},
        Page{"each section goes with its own field", {u"Formations", u"Langues"}, false, Sections, u"(fl)"},
        Page{"and no other", {u"Etudes", u"Experiences", u"Divers"}, false, Sections, u"(e.xd)"},
        Page{"skills", {u"Competences"}, false, Sections, u"(c)"},
        Page{"experience comes first",
             {u"Etudes", u"Formations", u"Experiences", u"Competences", u"Langues", u"Divers"},
             true,
             Sections,
             u"(xce.fld)"},
        Page{"the swap of emptied sections", {u"Experiences", u"Competences"}, true, Sections, u"(xc)"},
        Page{"without P03 sections stay", {}, true, u"(P01aP02bP04cP05dP06eP07)", u"(abcde)"},
        Page{"without P07 sections stay, the swap does not need it", {}, true, u"(P01aP03bP05)", u"(ba)"},
        Page{"boundaries out of order move nothing", {}, true, u"(P03aP01bP05cP07)", u"(abc)"},
        Page{"one section out of order, the next one cut",
             {u"Experiences"},
             false,
             u"(P03aP02bP06cP07)",
             u"(ab)"},
        Page{"a mark counts at its first occurrence",
             {u"Formations", u"Divers"},
             false,
             u"(P01aP02bP02cP03dP04eP04fP05gP07)",
             u"(bcg)"},
        Page{"marks are removed wherever they stand, each in one pass",
             {},
             false,
             u"P0P0112 P07P03",
             u"P012 "}));

TEST(FillTemplate, AMarkWrittenInAFieldMovesTheSwapAndIsRemoved) {
  CvDocument cv;
  cv.Gras = u"0";
  cv.Etudes = u"réf P03 ici";
  cv.Experiences = cv.Formations = cv.Competences = cv.Langues = cv.Divers = u".";
  EXPECT_EQ(Fill(cv, Sections), u"(eréf  icifxcld)");
  cv.CheckDisposition[1] = true;
  EXPECT_EQ(Fill(cv, Sections), u"( icifxceréf ld)") << "the block begins at the first P03";
}

TEST(FillTemplate, FillsEveryMarkOfAKnownFieldInTheFormsOrder) {
  CvDocument cv;
  cv.Prenom = u"Zoé";
  cv.Nom = u"<script>#Ville#";
  cv.Ville = u"Lyon #Nom#";
  cv.Modele = u"x.htm";
  EXPECT_EQ(Fill(cv, u"#Prenom# #Prénom# #nom# #Inconnu# #Souligne# #Modèle# #Modele#"),
            u"Zoé Zoé #nom# #Inconnu# 0 x.htm #Modele#");
  EXPECT_EQ(Fill(cv, u"#Nom#|#Nom#"), u"<script>Lyon #Nom#|<script>Lyon #Nom#")
      << "what a later field brings in is not filled again";
  cv.Etudes = u"- a\r\n- b";
  EXPECT_EQ(Fill(cv, u"#Etudes#"),
            u"<b>a</b><br><span style='display:block; padding-left:40px'>b<br></span>");
  cv.Gras = u"1.0";
  cv.Indentation = u"01x";
  cv.Saut = u"11";
  EXPECT_EQ(Fill(cv, u"#Etudes#"), u"<b>a</b><br><span style='display:block; padding-left:40px'>b<br></span>")
      << "options are read as numbers";
}

TEST(FillTemplate, ColoursFontAndPhotoComeInTheirOrder) {
  CvDocument cv;
  cv.Police = u"Verdana";
  cv.Couleur = u"#112233";
  cv.CouleurClaire = u"#AABBCC";
  EXPECT_EQ(Fill(cv, u"Arial #FF6600 #ff6600 #808080 #c0c0c0 #C0C0C0 #FFE6D5 [#Photographie#]"),
            u"Verdana #112233 #ff6600 #112233 #AABBCC #C0C0C0 #AABBCC []");
  EXPECT_EQ(FillTemplate(cv, u"#Photographie#", PhotoOnPage::Picture),
            u"<IMG STYLE='border: 1.00pt solid #112233; padding: 0.05cm' SRC='Photo.jpg' WIDTH=100>");
  cv.Couleur = u"#808080";
  EXPECT_EQ(Fill(cv, u"#FF6600"), u"#808080");
  cv.Couleur = u"#c0c0c0";
  EXPECT_EQ(Fill(cv, u"#FF6600"), u"#AABBCC") << "a main colour that is a pale mark is replaced again";
  cv.Police.clear();
  EXPECT_EQ(Fill(cv, u"Arial"), u"Arial");
}

TEST(FillTemplate, EnglishRunsOverMarkupAndUserTextBeforeTheMarksGo) {
  CvDocument cv;
  cv.LangueCV = u"1";
  cv.Prenom = u"Anne";
  cv.Situation = u"Marié(e)";
  cv.Divers = u"Langues";
  EXPECT_EQ(Fill(cv, u"<p class='Divers'>#Situation# #Divers# schP01olaire"),
            u"<p class=' Other'>Mariede Languages knowledge scholaire");
  cv.LangueCV = u"2";
  EXPECT_EQ(Fill(cv, u"Divers"), u"Divers");
}

TEST(FillTemplate, AHostileDocumentCannotBlowThePageUp) {
  CvDocument cv;
  // Each of the last fields doubles the next one, just often enough to reach the bound.
  const std::size_t first = CvFields.size() - 25;
  for (std::size_t i = first; i + 1 < CvFields.size(); ++i) {
    const Text next = u"#" + ReplaceAll(CvFields[i + 1].name, u"é", u"e") + u"#";
    cv.*(CvFields[i].text) = next + next;
  }
  const Text page = Fill(cv, u"#" + Text{CvFields[first].name} + u"#");
  EXPECT_LE(page.size(), LargestPage);
  EXPECT_GT(page.size(), LargestPage / 4) << "the bound is what stopped it";
}

struct Words {
  TextView french, english;
  friend void PrintTo(const Words& row, std::ostream* out) { *out << ToUtf8(row.french); }
};

class Translations : public testing::TestWithParam<Words> {};

TEST_P(Translations, KeepTheOrderOfTheTable) { EXPECT_EQ(TraduireCV(GetParam().french), GetParam().english); }

INSTANTIATE_TEST_SUITE_P(
    TraduireCV, Translations,
    testing::Values(Words{u"Née le 12/03/1975 à Lyon", u"Born in 12/03/1975 to Lyon"},
                    Words{u"Mariée", u"Mariede"}, Words{u"(35 ans)", u"(35 )"},
                    Words{u"2 enfants, 1 enfant", u"2 children, 1 child"},
                    Words{u"Anglais professionnel", u"English professional"},
                    Words{u"Russe bilingue", u"Russe bilingue"}, Words{u"Mobile : 06", u"Mobile : 06"},
                    Words{u"Téléphone : 01", u"Phone : 01"},
                    Words{u"Exp&eacute;rience professionnelle", u"Professional experience"},
                    Words{u"Expérience professionnelle", u"Expérience professionalle"},
                    Words{u"Domaines de comp&eacute;tences", u"Skills"},
                    Words{u"Divorcée et divers", u"Divorcée et divers"}, Words{u"", u""}));

}  // namespace
}  // namespace talvor
