#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <utility>

#include "base/line_file.h"
#include "capture/prefill.h"
#include "capture/site_directory.h"
#include "capture/start_page.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor {
namespace {

TEST(Prefill, AnElementIsToldByItsNameAndTheLastRowStands) {
  const PrefillValues values{u"mail",  u"nom", u"prénom", u"adresse", u"cp",
                             u"ville", u"tel", u"métier", u"lettre"};
  const auto filled = [&](TextView name, TextView id = u"") {
    const Text* value = PrefillValue(values, name, id);
    return value ? ToUtf8(*value) : "-";
  };
  for (const auto& [name, expected] :
       std::initializer_list<std::pair<TextView, const char*>>{{u"email", "mail"},
                                                               {u"login", "mail"},
                                                               {u"identifiant", "mail"},
                                                               {u"lastname", "nom"},
                                                               {u"NOM", "nom"},
                                                               {u"surname", "nom"},
                                                               {u"prenom", "prénom"},
                                                               {u"nomPrenom", "prénom"},
                                                               {u"first_name", "prénom"},
                                                               {u"adr1", "adresse"},
                                                               {u"adresseMail", "adresse"},
                                                               {u"cp", "cp"},
                                                               {u"codePostal", "cp"},
                                                               {u"vpa", "ville"},
                                                               {u"localite", "ville"},
                                                               {u"ville", "ville"},
                                                               {u"city", "ville"},
                                                               {u"l", "ville"},
                                                               {u"ll", "-"},
                                                               {u"motcle", "métier"},
                                                               {u"keywords", "métier"},
                                                               {u"r", "métier"},
                                                               {u"expediteur", "mail"},
                                                               {u"recherche", "métier"},
                                                               {u"telephone", "tel"},
                                                               {u"message", "lettre"},
                                                               {u"commentaire", "lettre"},
                                                               {u"remarque", "lettre"},
                                                               {u"letter", "lettre"},
                                                               {u"note", "lettre"},
                                                               {u"motdepasse", "-"},
                                                               {u"password_email", "-"},
                                                               {u"x", "-"}})
    EXPECT_EQ(filled(name), expected) << ToUtf8(name);
  EXPECT_EQ(filled(u"", u"nom"), "nom") << "the id stands in for a missing name";
  EXPECT_EQ(filled(u"x", u"nom"), "-") << "and for a missing name only";
  EXPECT_EQ(filled(u"", u""), "-");
}

TEST(SiteDirectory, TheDeliveredRowsComeBackWithTheFileDeleted) {
  const ScratchFolder scratch;
  SiteDirectory directory;
  directory.Charger();
  ASSERT_EQ(directory.Rows.size(), 195u);
  std::set<Text> animation;
  for (const Text& row : directory.Rows) {
    EXPECT_TRUE(SiteDirectory::AddressOf(row).starts_with(u"https://")) << ToUtf8(row);
    if (SiteDirectory::NameOf(row) == u"EMPLOI-ANIMATION") animation.insert(SiteDirectory::AddressOf(row));
  }
  EXPECT_EQ(animation.size(), 2u);
  EXPECT_EQ(SiteDirectory::NameOf(directory.Rows.back()), u"YAKE OFREMPLOI");

  std::ofstream{"Listesites.txt", std::ios::binary}
      << "UN DEUX   http://a.example/?u=http://b.example/\r\nsans adresse\r\n\r\n";
  directory.Charger();
  ASSERT_EQ(directory.Rows.size(), 1u) << "the file replaces the rows";
  EXPECT_EQ(SiteDirectory::AddressOf(directory.Rows[0]), u"http://a.example/?u=http://b.example/");
  EXPECT_EQ(SiteDirectory::NameOf(directory.Rows[0]), u"UN DEUX");
  std::ofstream{"Listesites.txt"} << "";
  directory.Charger();
  EXPECT_TRUE(directory.Rows.empty()) << "an empty file is kept";
  std::filesystem::remove("Listesites.txt");
  directory.Charger();
  EXPECT_EQ(directory.Rows.size(), 195u);
}

TEST(StartPage, LinksEverySiteAndLetsNoRowBreakItsMarkup) {
  SiteDirectory directory;
  directory.Rows = {u"ACME & FILS   http://a.example/?x=1&y='2'", u"<script>   http://b.example/",
                    u"sans/adresse"};
  const Text page = StartPageHtml(directory, PagePalette::Light);
  EXPECT_TRUE(Contains(page, u"<a href='http://a.example/?x=1&amp;y=&#39;2&#39;'>ACME &amp; FILS</a>"));
  EXPECT_TRUE(Contains(page, u"<a href='http://b.example/'>&lt;script&gt;</a>"));
  EXPECT_FALSE(Contains(page, u"sans/adresse"));
  EXPECT_FALSE(Contains(page, u"<body class='dark'>"));
  EXPECT_TRUE(Contains(StartPageHtml(directory, PagePalette::Dark), u"<body class='dark'><h1>"));
}

TEST(SiteDirectory, APageOfSitesBecomesTheFile) {
  const ScratchFolder scratch;
  EXPECT_FALSE(SiteDirectory::MajListeSites(u"UN http://a.example/ DEUX MOTS http://b.example/").Failed());
  EXPECT_EQ(ReadBytes("Listesites.txt"), "UN   \thttp://a.example/\r\nDEUX   \tMOTS   \thttp://b.example/");
  SiteDirectory directory;
  directory.Charger();
  ASSERT_EQ(directory.Rows.size(), 2u);
  EXPECT_EQ(SiteDirectory::AddressOf(directory.Rows[1]), u"http://b.example/");
}

TEST(SiteDirectory, TheDeliveredFileOpensWithTheBoardsOfToday) {
  const auto lines = ReadLines(TALVOR_DATA_FOLDER "/Listesites.txt");
  ASSERT_TRUE(lines);
  EXPECT_GE(lines->size(), 195u + 20u);
  for (const Text& line : *lines)
    EXPECT_TRUE(SiteDirectory::AddressOf(line).starts_with(u"https://")) << ToUtf8(line);
}

}  // namespace
}  // namespace talvor
