#include "sending/conversion.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

#include "cv/editor.h"
#include "sending/form_convert.h"
#include "tests/fakes/fakes.h"
#include "tests/fakes/scratch_folder.h"
#include "tests/fakes/sending_fakes.h"
#include "workspace/systeme.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

constexpr TextView InUse = u"Le fichier est en cours d'utilisation. Conversion impossible";

class ConversionTest : public testing::Test {
 protected:
  ConversionTest() {
    environment.values[u"userprofile"] = *TextOf(scratch.Path());
    environment.values[u"ALLUSERSPROFILE"] = u"C:\\ProgramData";
    editor.NomCV = u"Dupont";
    fs::create_directory("Modeles");
    Write("Modeles/CVtemp.html", "PAGE");
    shell.visible.emplace(EditorForm);
  }

  static void Write(const fs::path& file, const char* bytes) {
    ASSERT_FALSE(WriteBytes(file, bytes).Failed());
  }
  static std::string Bytes(const fs::path& file) { return ReadBytes(file).value_or("(missing)"); }
  fs::path Documents(const char* name) { return scratch.Path() / "Documents" / name; }
  static std::vector<Text> Names(const fs::path& folder) {
    FileList files;
    files.Point(folder);
    std::vector<Text> names;
    for (std::size_t i = 0; i < files.Count(); ++i) names.push_back(files.List(i));
    return names;
  }

  ScratchFolder scratch;
  FakeEnvironment environment;
  FakeDialogs dialogs;
  FakeShell shell;
  FakeDocuments documents;
  FakeWordProcessor word, pdf;
  CvDocument editor;
  const CvConversion::Surroundings around{editor, environment, shell, dialogs, documents, word, pdf};
  CvConversion conversion{around};
  FormConvert form{around};
};

TEST_F(ConversionTest, TheTargetStandsInTheDocumentsFolderOfTheLayout) {
  conversion.ConvertirWord();
  EXPECT_EQ(Bytes(Documents("Dupont.doc")), ".doc PAGE");
  environment.values[u"ALLUSERSPROFILE"] = u"C:\\Documents and Settings\\All Users";
  conversion.ConvertirWord();
  const fs::path older = scratch.Path() / "Mes documents" / "Dupont.doc";
  EXPECT_EQ(Bytes(older), ".doc PAGE");
  EXPECT_EQ(documents.opened, (std::vector{*TextOf(Documents("Dupont.doc")), *TextOf(older)}));
  EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(ConversionTest, AnOlderWordVersionGoesFirstWhateverItsCaseAndTheNewOneReplacesIt) {
  fs::create_directory("Documents");
  Write(Documents("DUPONT.DOC"), "old");
  conversion.ConvertirWord();
  EXPECT_FALSE(word.stoodBefore);
  EXPECT_EQ(Names("Documents"), std::vector<Text>{u"Dupont.doc"});
  EXPECT_EQ(Bytes(Documents("Dupont.doc")), ".doc PAGE");
}

TEST_F(ConversionTest, AFailedConversionTellsItsReasonAndLeavesTheOlderVersion) {
  fs::create_directory("Documents");
  Write(Documents("Dupont.doc"), "old");
  Write(Documents("Dupont.odt"), "old");
  word.fault = u"LibreOffice n’est pas installé";
  conversion.ConvertirWord();
  conversion.ConvertirODF();
  EXPECT_EQ(Bytes(Documents("Dupont.doc")), "old");
  EXPECT_EQ(Bytes(Documents("Dupont.odt")), "old");
  EXPECT_EQ(Names("Documents"), (std::vector<Text>{u"Dupont.doc", u"Dupont.odt"}));
  EXPECT_EQ(dialogs.told, (std::vector{word.fault, word.fault}));
  EXPECT_TRUE(documents.opened.empty());
}

TEST_F(ConversionTest, TheOtherFormatsKeepTheOldDocumentUntilTheNewOneStands) {
  fs::create_directory("Documents");
  Write(Documents("Dupont.odt"), "old");
  Write(Documents("Dupont.pdf"), "old");
  conversion.ConvertirODF();
  EXPECT_TRUE(word.stoodBefore);
  EXPECT_EQ(Bytes(Documents("Dupont.odt")), ".odt PAGE");
  conversion.ConvertirPDF();
  EXPECT_TRUE(pdf.stoodBefore);
  EXPECT_EQ(Bytes(Documents("Dupont.pdf")), ".pdf PAGE");
  EXPECT_EQ(documents.opened.size(), 2u);
}

TEST_F(ConversionTest, ADocumentInUseEndsTheConversionBeforeAnythingIsDone) {
  fs::create_directory("Documents");
  Write(Documents("Dupont.doc"), "old");
  word.open = Documents("Dupont.doc");
  conversion.ConvertirWord();
  EXPECT_EQ(dialogs.told, std::vector<Text>{Text{InUse}});

  // One that cannot be moved out of the way counts as in use, too.
  word.open.clear();
  fs::create_directories(Documents("Dupont.doc~") / "full");
  conversion.ConvertirWord();
  EXPECT_EQ(dialogs.told, (std::vector<Text>{Text{InUse}, Text{InUse}}));
  EXPECT_EQ(Bytes(Documents("Dupont.doc")), "old");
  EXPECT_TRUE(documents.opened.empty());
}

TEST_F(ConversionTest, NothingHappensWhileTheEditorIsNotVisible) {
  shell.visible.clear();
  conversion.ConvertirWord();
  conversion.ConvertirODF();
  conversion.ConvertirPDF();
  EXPECT_TRUE(Names("Documents").empty());
  EXPECT_TRUE(dialogs.told.empty());
  EXPECT_TRUE(documents.opened.empty());
}

TEST_F(ConversionTest, ACvWithoutNameOrPageOrWithAFolderInItsNameIsNotConverted) {
  for (const TextView name : {u"", u"../../x", u"a/b"}) {
    editor.NomCV = name;
    conversion.ConvertirWord();
    EXPECT_EQ(dialogs.told.size(), 1u) << ToUtf8(name);
    dialogs.told.clear();
  }
  editor.NomCV = u"Dupont";
  fs::remove("Modeles/CVtemp.html");
  conversion.ConvertirWord();
  EXPECT_EQ(dialogs.told.size(), 1u);
  EXPECT_FALSE(fs::exists("Documents"));
}

TEST_F(ConversionTest, ADocumentsFolderThatCannotBeMadeIsTold) {
  Write(scratch.Path() / "Documents", "a file in the way");
  conversion.ConvertirWord();
  EXPECT_EQ(dialogs.told.size(), 1u);
  EXPECT_EQ(Bytes(scratch.Path() / "Documents"), "a file in the way");
}

TEST_F(ConversionTest, TheFormShowsTheProgramAndTheLastVersion) {
  form.Charger();
  EXPECT_EQ(form.DocProgram, u"");
  EXPECT_EQ(form.Info, u"Aucun fichier trouvé.");
  form.OpenLastVersion();
  EXPECT_TRUE(documents.opened.empty());

  documents.program = u"libreoffice-writer.desktop";
  fs::create_directory("Documents");
  Write(Documents("Dupont.doc"), "x");
  std::tm noon{.tm_sec = 5, .tm_min = 42, .tm_hour = 18, .tm_mday = 10, .tm_mon = 2, .tm_year = 126};
  noon.tm_isdst = -1;
  const auto written = std::chrono::system_clock::from_time_t(std::mktime(&noon));
  fs::last_write_time(Documents("Dupont.doc"), std::chrono::file_clock::from_sys(written));
  form.Charger();
  EXPECT_EQ(form.DocProgram, u"libreoffice-writer.desktop");
  EXPECT_EQ(form.Info, u"Dupont.doc     10/03/2026 18:42:05");
  form.OpenLastVersion();
  form.OpenDocumentsFolder();
  form.OpenPage();
  EXPECT_EQ(documents.opened,
            (std::vector{*TextOf(Documents("Dupont.doc")), *TextOf(scratch.Path() / "Documents"),
                         *TextOf(scratch.Path() / "Modeles" / "CVtemp.html")}));
}

TEST_F(ConversionTest, AnOpenWordProcessorIsAdvisedAgainstAtOpeningAndAtConverting) {
  documents.titles = {u"x - OpenOffice.org Writer"};
  form.Charger();
  form.ConvertToDoc();
  EXPECT_EQ(dialogs.told,
            (std::vector<Text>{
                u"Il est recommandé de ferme Microsoft Word ou Open Office pour faciliter la conversion",
                u"Il est préferable de fermer tous les documents Word afin de faciliter la conversion"}));
  EXPECT_EQ(Bytes(Documents("Dupont.doc")), ".doc PAGE");
  EXPECT_EQ(shell.calls.back(), u"Unload FormConvert");

  documents.titles = {u"openoffice", u"Winword", u"LibreOffice"};
  EXPECT_FALSE(TraitementTexteOuvert(documents));
  documents.titles = {u"a", u"WINWORD.EXE"};
  EXPECT_TRUE(TraitementTexteOuvert(documents));
}

TEST_F(ConversionTest, ADocumentThatNothingOpensIsTold) {
  documents.answer = false;
  conversion.ConvertirWord();
  ASSERT_EQ(dialogs.told.size(), 1u);
  EXPECT_TRUE(Contains(dialogs.told[0], u"Dupont.doc"));
  EXPECT_EQ(Bytes(Documents("Dupont.doc")), ".doc PAGE");
}

}  // namespace
}  // namespace talvor
