// The delivered templates, filled with CVs of every kind.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <string>
#include <vector>

#include "base/line_file.h"
#include "cv/cv_file.h"
#include "cv/model_files.h"
#include "cv/renderer.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

struct Heading {
  Text CvDocument::* field;
  TextView french, english;
};

// In the order of the sections of a page.
constexpr std::array<Heading, 6> Headings{{
    {&CvDocument::Etudes, u"Etudes et dipl&ocirc;mes", u"Degrees"},
    {&CvDocument::Formations, u"Autres formations", u"Vocational training"},
    {&CvDocument::Experiences, u"Exp&eacute;rience professionnelle", u"Professional experience"},
    {&CvDocument::Competences, u"Domaines de comp&eacute;tences", u"Skills"},
    {&CvDocument::Langues, u"Langues", u"Languages knowledge"},
    {&CvDocument::Divers, u"Divers", u" Other"},
}};
constexpr unsigned AllSections = 0x3F;
constexpr std::array<std::size_t, 6> ExperienceFirst{2, 3, 0, 1, 4, 5};

constexpr std::array<TextView, 17> Identity{
    u"Nom",           u"Prénom",        u"Adresse1", u"Adresse2",  u"CP",       u"Ville",
    u"Pays",          u"Tel",           u"Mob",      u"Email",     u"Fonction", u"Objectifs",
    u"DateNaissance", u"LieuNaissance", u"Age",      u"NbEnfants", u"Situation"};

// A CV whose fields hold their own names between brackets; of the sections those of the set alone.
CvDocument Sample(unsigned sections) {
  CvDocument cv;
  for (const auto name : Identity) cv.*(FindField(CvFields, name)->text) = u"[" + Text{name} + u"]";
  for (std::size_t i = 0; i < Headings.size(); ++i)
    if ((sections >> i & 1) != 0)
      cv.*(Headings[i].field) = u"[" + NumberText(static_cast<long long>(i)) + u"]\r\nx";
  cv.Police = u"Verdana";
  cv.Couleur = u"#112233";
  cv.CouleurClaire = u"#DDEEFF";
  return cv;
}

// The text of a heading stands alone in its element.
TextView::size_type HeadingAt(TextView page, TextView heading) {
  return page.find(u"<h2>" + Text{heading} + u"</h2>");
}

// Empty for a page whose elements nest and close, otherwise what is amiss.
std::string NestingFault(TextView page) {
  constexpr std::array<TextView, 4> Unclosed{u"meta", u"br", u"IMG", u"!DOCTYPE"};
  std::vector<TextView> open;
  for (auto at = page.find(u'<'); at != TextView::npos; at = page.find(u'<', at + 1)) {
    TextView name = page.substr(at + 1, page.find_first_of(u" >", at) - at - 1);
    const bool closing = name.starts_with(u'/');
    if (closing) name.remove_prefix(1);
    if (std::find(Unclosed.begin(), Unclosed.end(), name) != Unclosed.end()) continue;
    if (!closing) {
      open.push_back(name);
    } else {
      if (open.empty() || open.back() != name) return "</" + ToUtf8(name) + "> closes nothing";
      open.pop_back();
    }
  }
  return open.empty() ? "" : "<" + ToUtf8(open.back()) + "> stays open";
}

// A mark of the template language that is still in the page, or nothing.
Text LeftOver(TextView page) {
  for (const TextView mark : {u"P01", u"P02", u"P03", u"P04", u"P05", u"P06", u"P07", u"#FF6600", u"#808080",
                              u"#c0c0c0", u"#FFE6D5", u"Arial"})
    if (Contains(page, mark)) return Text{mark};
  for (auto at = page.find(u'#'); at != TextView::npos; at = page.find(u'#', at + 1)) {
    const auto end = page.find_first_of(u"# ;<>\"", at + 1);
    if (end != TextView::npos && page[end] == u'#') return Text{page.substr(at, end + 1 - at)};
  }
  return {};
}

std::vector<fs::path> DeliveredTemplates() {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(fs::path{TALVOR_DATA_FOLDER} / "Modeles"))
    if (entry.path().extension() == ".htm") files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

class Templates : public testing::TestWithParam<fs::path> {
 protected:
  const Text page = ReadTemplate(GetParam()).value();
};

TEST_P(Templates, SurviveEverySetOfSectionsInBothOrders) {
  for (unsigned sections = 0; sections <= AllSections; ++sections)
    for (const bool experienceFirst : {false, true}) {
      CvDocument cv = Sample(sections);
      cv.CheckDisposition[1] = experienceFirst;
      const Text filled = FillTemplate(cv, page, PhotoOnPage::Picture);
      SCOPED_TRACE(testing::Message() << "sections " << sections << (experienceFirst ? ", swapped" : ""));
      EXPECT_EQ(LeftOver(filled), u"");
      EXPECT_EQ(NestingFault(filled), "");
      TextView::size_type last = 0;
      for (std::size_t place = 0; place < Headings.size(); ++place) {
        const std::size_t i = experienceFirst ? ExperienceFirst[place] : place;
        const auto heading = HeadingAt(filled, Headings[i].french);
        const auto text = filled.find(u"[" + NumberText(static_cast<long long>(i)) + u"]");
        if ((sections >> i & 1) == 0) {
          EXPECT_EQ(heading, TextView::npos) << "an empty section leaves its heading: " << i;
          continue;
        }
        ASSERT_NE(heading, TextView::npos) << i;
        EXPECT_LT(last, heading) << "out of order: " << i;
        EXPECT_LT(heading, text) << i;
        last = text;
      }
    }
}

TEST_P(Templates, ShowTheWholeIdentityThePhotoTheColoursAndTheFont) {
  const CvDocument cv = Sample(0);
  const Text filled = FillTemplate(cv, page, PhotoOnPage::Picture);
  const TextView body = TextView{filled}.substr(filled.find(u"<body>"));
  for (const auto name : Identity)
    EXPECT_NE(body.find(u"[" + Text{name} + u"]"), TextView::npos) << ToUtf8(name);
  EXPECT_NE(body.find(u"SRC='Photo.jpg'"), TextView::npos);
  EXPECT_EQ(FillTemplate(cv, page, PhotoOnPage::None).find(u"IMG"), TextView::npos);
  for (const TextView style : {u"#112233", u"#DDEEFF", u"\"Verdana\"", u"size: A4"})
    EXPECT_NE(filled.find(style), TextView::npos) << ToUtf8(style);

  EXPECT_EQ(LeftOver(FillTemplate({.Police = u"x", .Couleur = u"y", .CouleurClaire = u"z"}, page,
                                  PhotoOnPage::None)),
            u"");
}

TEST_P(Templates, SpeakEnglishWithoutHarmToTheirStyle) {
  CvDocument cv = Sample(AllSections);
  const Text french = FillTemplate(cv, page, PhotoOnPage::None);
  cv.LangueCV = u"1";
  const Text english = FillTemplate(cv, page, PhotoOnPage::None);
  for (const auto& heading : Headings) {
    EXPECT_NE(HeadingAt(english, heading.english), TextView::npos) << ToUtf8(heading.english);
    EXPECT_EQ(HeadingAt(english, heading.french), TextView::npos) << ToUtf8(heading.french);
  }
  const auto styleEnd = [](TextView text) { return text.find(u"</style>"); };
  EXPECT_EQ(english.substr(0, styleEnd(english)), french.substr(0, styleEnd(french)));
  const auto classes = [](TextView text) {
    std::vector<Text> found;
    for (auto at = text.find(u"class=\""); at != TextView::npos; at = text.find(u"class=\"", at + 1))
      found.emplace_back(text.substr(at, text.find(u'>', at) - at));
    return found;
  };
  EXPECT_EQ(classes(english), classes(french));
}

TEST_P(Templates, TakeRealCvsInBothLanguages) {
  for (const auto& file : fs::directory_iterator(fs::path{TALVOR_TEST_DATA} / "cv")) {
    SCOPED_TRACE(file.path().string());
    CvDocument cv;
    ASSERT_TRUE(ReadCv(file.path(), cv));
    cv.Couleur = u"#112233";
    cv.CouleurClaire = u"#DDEEFF";
    cv.Police = u"Verdana";
    cv.Langues = LanguageSummary(cv);
    for (const TextView language : {u"0", u"1"}) {
      cv.LangueCV = language;
      const Text filled = FillTemplate(cv, page, PhotoOnPage::None);
      EXPECT_EQ(LeftOver(filled), u"");
      EXPECT_EQ(NestingFault(filled), "");
      EXPECT_TRUE(Contains(filled, u">" + cv.Prenom + u" " + cv.Nom + u"<"));
      EXPECT_TRUE(Contains(filled, u">" + cv.Email + u"<"));
      for (const auto& heading : Headings)
        EXPECT_EQ(HeadingAt(filled, language == u"0" ? heading.french : heading.english) != TextView::npos,
                  !(cv.*(heading.field)).empty());
    }
  }
}

TEST_P(Templates, FetchAndRunNothing) {
  for (const TextView what : {u"<script", u"<link", u"<iframe", u"url(", u"@import", u"src=", u"href="})
    EXPECT_FALSE(Contains(page, what)) << ToUtf8(what);
  EXPECT_TRUE(std::all_of(page.begin(), page.end(), [](char16_t c) { return c < 0x80; }))
      << "a letter that the character set could change";
}

std::string NameOf(const testing::TestParamInfo<fs::path>& info) {
  std::string name = info.param.stem().string();
  std::replace_if(name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Delivered, Templates, testing::ValuesIn(DeliveredTemplates()), NameOf);

TEST(DeliveredTemplates, AreSixWithTheOneOfANewCvAmongThem) {
  const auto files = DeliveredTemplates();
  EXPECT_EQ(files.size(), 6u);
  EXPECT_TRUE(std::any_of(files.begin(), files.end(), [](const fs::path& file) {
    return TextOf(file.filename()) == CvDocument{}.Modele;
  }));
}

}  // namespace
}  // namespace talvor
