#include "app/libre_office.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <tuple>
#include <utility>

#include "app/office_page.h"
#include "app/picture.h"
#include "app/process.h"
#include "base/line_file.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using namespace std::chrono_literals;

// A picture of 184 x 224 as far as its header goes.
const std::string Png = "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\xB8\0\0\0\xE0\x08\x02\0\0\0"s;

TEST(PictureTest, TheBytesTellKindAndSizeAndTornOnesTellNothing) {
  const std::string gif = "GIF89a\x2C\x01\xC8\x00rest"s;
  const std::string jpeg =
      "\xFF\xD8\xFF\xE0\0\x06JFIF\xFF\xC4\0\x03\x05\xFF\xFF\xC2\0\x11\x08\0\x50\x01\x40\x03"s;
  for (const auto& [bytes, mime, width, height] : {std::tuple{Png, "image/png", 184, 224},
                                                   {gif, "image/gif", 300, 200},
                                                   {jpeg, "image/jpeg", 320, 80}}) {
    const auto kind = PictureKindOf(bytes);
    ASSERT_TRUE(kind) << mime;
    EXPECT_EQ(kind->mimeType, mime);
    EXPECT_EQ(kind->width, static_cast<std::uint32_t>(width));
    EXPECT_EQ(kind->height, static_cast<std::uint32_t>(height));
    for (std::size_t length = 0; length < 10; ++length) EXPECT_FALSE(PictureKindOf(bytes.substr(0, length)));
  }
  EXPECT_FALSE(PictureKindOf("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\0\0\0\0\xE0"s)) << "no width";
  EXPECT_FALSE(PictureKindOf("\xFF\xD8\xFF\xE0\0\0\xFF\xE0\0\0\xFF\xE0\0\0\xFF"s)) << "segments of no length";
  EXPECT_FALSE(PictureKindOf("<svg width='10'>"));
}

class OfficePageTest : public testing::Test {
 protected:
  std::string Page(TextView page) { return OfficePage(page, scratch.Path()); }

  ScratchFolder scratch;
};

TEST_F(OfficePageTest, ThePhotoStandsInThePageWithTheHeightOfItsProportions) {
  ASSERT_FALSE(WriteBytes("Photo.jpg", Png).Failed());
  const std::string page =
      Page(u"<p>a<IMG STYLE='border: 1.00pt solid #123456; padding: 0.05cm' SRC='Photo.jpg' WIDTH=100>b</p>");
  const std::string before =
      "<p>a<img style=\"border: 1.00pt solid #123456; padding: 0.05cm\" src=\"data:image/png;base64,";
  EXPECT_TRUE(page.starts_with(before + "iVBORw0KGgoAAAANSUhEUgAAALgAAADgCAIAAAA=")) << page;
  EXPECT_TRUE(page.ends_with("\" width=100 height=122>b</p>")) << page;
  // One without a width has its own size.
  EXPECT_TRUE(Page(u"<img src=Photo.jpg>").ends_with("\" width=184 height=224>"));
}

TEST_F(OfficePageTest, NothingElseIsReadFromDiskOrNetwork) {
  ASSERT_FALSE(WriteBytes("Photo.jpg", "no picture").Failed());
  for (const TextView page :
       {u"<img src='http://a/b.png'>", u"<IMG SRC=/etc/x.png>", u"<img src='../Photo.jpg'>",
        u"<img src='Photo.jpg'>", u"<img>", u"<img src='absent.png'", u"<link rel=stylesheet href=x>",
        u"<iframe src='x'></iframe>", u"<script>fetch('x')</script>", u"<SCRIPT>a<b</SCRIPT>",
        u"<base href=x>", u"<meta http-equiv=refresh content='0;url=x'>", u"<object data=x></object>",
        u"<!-- <img src=x> -->", u"<embed src=x>", u"<script>never ended"}) {
    const std::string copy = Page(u"<b>a</b>" + Text{page} + u"");
    EXPECT_TRUE(copy == "<b>a</b>" || copy == "<b>a</b></iframe>" || copy == "<b>a</b></object>") << copy;
  }
  // Where the tag stays, what fetches does not.
  for (const TextView page :
       {u"<body background=x>", u"<td BACKGROUND='x'>", u"<td background = 'x'>", u"<td\nbackground\n=\nx>",
        u"<table/background=x>", u"<td\vbackground=x>", u"<ul src=x>", u"<p onload='x'>",
        u"<p style='background:URL(x)'>", u"<p style='background:u&#114;l(x)'>",
        u"<p style='background:u\\72l(x)'>", u"<style>@IMPORT 'x';</style>",
        u"<style>p{background:url(x)}</style>", u"<p ><img src=x>", u"< ' <img src=x>", u"<p '><img src=x>",
        u"<p a=\"><img src=x>", u"<style><img src=x></style>"}) {
    std::string copy = Page(page);
    for (char& c : copy) c = static_cast<char>(std::tolower(c));
    for (const char* fetching :
         {"url(", "@import", "background=", "background =", "ul src", "onload", "<img", "&#114", "\\"})
      EXPECT_EQ(copy.find(fetching), std::string::npos) << copy;
  }
}

TEST_F(OfficePageTest, APictureOutsideTheFolderOfThePageStaysOut) {
  fs::create_directories("Modeles/Autre");
  for (const char* file :
       {"Photo.jpg", "Modeles/Photo.jpg", "Modeles/Autre/Photo.jpg", "Modeles/.\\Photo.jpg"})
    ASSERT_FALSE(WriteBytes(file, Png).Failed());
  const auto page = [](const Text& source) { return OfficePage(u"<img src='" + source + u"'>", "Modeles"); };
  EXPECT_NE(page(u"Photo.jpg"), "");
  for (const Text& source : {Text{u"../Photo.jpg"}, Text{u"Autre/../../Photo.jpg"}, Text{u"Autre/Photo.jpg"},
                             Text{u".\\Photo.jpg"}, *TextOf(scratch.Path() / "Photo.jpg")})
    EXPECT_EQ(page(source), "") << ToUtf8(source);
}

TEST_F(OfficePageTest, TextsStayAndCharactersOutsideAsciiBecomeReferences) {
  EXPECT_EQ(Page(u"<p title='a > b'>1 < 2 & é € \U0001F600 url(x) \\ &#128515;</p>"),
            "<p title=\"a > b\">1 < 2 & &#233; &#8364; &#128512; url(x) \\ &#128515;</p>");
  EXPECT_EQ(Page(u"<!DOCTYPE html><A HREF = 'http://a'>x</A><br/><td nowrap width=50% class=\"a b\" "
                 u"style=\"color: red\">"),
            "<a href=\"http://a\">x</a><br><td nowrap width=\"50%\" class=\"a b\" style=\"color: red\">");
  EXPECT_EQ(Page(u"a<"), "a<");
  EXPECT_EQ(Page(u"<style><!-- p{color:red} --></style>"), "<style> p{color:red} --></style>");
}

class ProcessTest : public testing::Test {
 protected:
  // A program made of these lines.
  static std::string Script(const std::string& lines) {
    std::ofstream("script") << "#!/bin/sh\n" << lines << '\n';
    fs::permissions("script", fs::perms::owner_all);
    return (fs::current_path() / "script").string();
  }

  ScratchFolder scratch;
};

TEST_F(ProcessTest, ArgumentsReachTheProgramWholeAndItsEndIsTold) {
  const ProcessEnd end = RunProcess(
      {Script("printf '%s|' \"$@\"; cat; echo é >&2; exit 3"), "a b", "", "$HOME", "'\"", "-x;y"}, 10s);
  EXPECT_EQ(end.kind, ProcessEnd::Kind::Exited);
  EXPECT_EQ(end.exitCode, 3);
  EXPECT_EQ(end.output, "a b||$HOME|'\"|-x;y|é\n");
  EXPECT_EQ(RunProcess({"no-such-program-here"}, 10s).kind, ProcessEnd::Kind::NotFound);
  EXPECT_EQ(RunProcess({Script("kill -9 $$")}, 10s).kind, ProcessEnd::Kind::Failed);
}

TEST_F(ProcessTest, BeyondTheLimitTheProgramGoesWithAllItHasStarted) {
  int waits = 0;
  const ProcessEnd end =
      RunProcess({Script("(sleep 2; echo alive > alive) & sleep 30")}, 300ms, [&] { ++waits; });
  EXPECT_EQ(end.kind, ProcessEnd::Kind::TooLong);
  EXPECT_GT(waits, 1);
  ::usleep(2500000);
  EXPECT_FALSE(fs::exists("alive"));
}

class LibreOfficeTest : public ProcessTest {
 protected:
  LibreOfficeTest() {
    EXPECT_FALSE(WriteBytes("page.html", "<p>Bonjour \xE9</p>").Failed());
    EXPECT_FALSE(WriteBytes("cv.doc", "old").Failed());
  }
  // What the export says of its failure, nothing when it has worked.
  Text Fault(const fs::path& page, const fs::path& target) {
    const auto exported = office.Export(page, target);
    return exported.Failed() ? exported.Why().Cause() : Text{};
  }
  Text Export() { return Fault("page.html", scratch.Path() / "cv.doc"); }
  static std::string Target() { return ReadBytes("cv.doc").value_or("(missing)"); }
  // What else a conversion leaves behind in the folder of its target.
  static std::ptrdiff_t Left() {
    return std::count_if(fs::directory_iterator{"."}, {}, [](const auto& entry) {
      return entry.path().filename().string().starts_with(".talvor");
    });
  }

  LibreOffice office;
};

TEST_F(LibreOfficeTest, AFailureOfAnyKindIsToldInFrenchAndLeavesTheOldDocument) {
  office.limit = 500ms;
  for (const auto& [program, told] : {std::pair{"no-such-program-here"s, u"libreoffice-writer"},
                                      {Script("sleep 30"), u"dans le temps imparti"},
                                      {"false"s, u"LibreOffice n’a pas pu convertir le CV."},
                                      {"true"s, u"LibreOffice n’a pas pu convertir le CV."}}) {
    office.program = program;
    const Text fault = Export();
    EXPECT_TRUE(Contains(fault, told)) << ToUtf8(fault);
    EXPECT_EQ(Target(), "old");
    EXPECT_EQ(Left(), 0);
  }
  office.program = Script("echo 'Error: no export filter' >&2; exit 1");
  EXPECT_EQ(Export(), u"LibreOffice n’a pas pu convertir le CV\u00A0: Error: no export filter");
  EXPECT_TRUE(Contains(Fault("absent.html", "cv.doc"), u"introuvable"));
  EXPECT_EQ(Fault("page.html", "absent/cv.doc"),
            u"Le document n’a pas pu être écrit dans le dossier «\u00A0absent\u00A0»\u00A0: ce fichier ou ce "
            u"dossier n’existe pas.");
}

// A window of it that is open already would take the conversion over, and its settings would change.
TEST_F(LibreOfficeTest, ItRunsWithoutWindowOnAProfileOfItsOwnEachTime) {
  fs::create_directory("à part");
  ::setenv("TMPDIR", "à part", 1);
  office.program = Script("printf '%s\\n' \"$@\" > arguments; exit 1");
  const std::string profile =
      "-env:UserInstallation=file://" + scratch.Path().string() + "/%C3%A0%20part/.talvor-";
  std::set<std::string> profiles;
  for (int run = 0; run < 2; ++run) {
    EXPECT_FALSE(Export().empty());
    const auto arguments = SplitLines(*FromUtf8(ReadBytes("arguments").value_or("")));
    EXPECT_NE(std::find(arguments.begin(), arguments.end(), u"--headless"), arguments.end());
    const std::string first = arguments.empty() ? "" : ToUtf8(arguments[0]);
    EXPECT_EQ(first.substr(0, profile.size()), profile);
    profiles.insert(first);
  }
  EXPECT_EQ(profiles.size(), 2u);
  EXPECT_TRUE(fs::is_empty("à part")) << "the profile goes with the conversion";
  ::unsetenv("TMPDIR");
}

TEST_F(LibreOfficeTest, ADocumentWrittenHalfwayNeverBearsTheName) {
  // The program writes, then hangs.
  office.program =
      Script("while [ \"$1\" != --outdir ]; do shift; done; echo half > \"$2/cv.doc\"; sleep 30");
  office.limit = 500ms;
  EXPECT_FALSE(Export().empty());
  EXPECT_EQ(Target(), "old");
  EXPECT_EQ(Left(), 0);
}

TEST_F(LibreOfficeTest, ADocumentIsInUseWhileItsLockStandsBesideIt) {
  const fs::path target = scratch.Path() / "cv.doc";
  EXPECT_FALSE(office.HasOpen(target));
  ASSERT_FALSE(WriteBytes(".~lock.cv.doc#", "").Failed());
  EXPECT_TRUE(office.HasOpen(target));
}

TEST_F(LibreOfficeTest, TheRealOneReplacesTheOldDocument) {
  int waits = 0;
  office.whileWaiting = [&] { ++waits; };
  EXPECT_EQ(Export(), u"");
  EXPECT_TRUE(Target().starts_with("\xD0\xCF\x11\xE0")) << "no document of that format";
  EXPECT_EQ(Left(), 0);
  EXPECT_GT(waits, 0);
}

}  // namespace
}  // namespace talvor
