#include "workspace/documents_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/line_file.h"
#include "tests/fakes/fakes.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

class DocumentsFolderTest : public testing::Test {
 protected:
  DocumentsFolderTest() { environment.values[u"userprofile"] = Profile(); }
  Text Profile() const { return *TextOf(scratch.Path()); }
  static void Write(const fs::path& file) {
    fs::create_directories(file.parent_path());
    ASSERT_FALSE(WriteBytes(file, "x").Failed());
  }

  ScratchFolder scratch;
  FakeEnvironment environment;
};

TEST_F(DocumentsFolderTest, TheOlderFolderIsFoundUnderEitherSpellingAndTheNewerOneOnEverySystem) {
  EXPECT_EQ(DocumentsFolder(environment), Profile() + u"/Mes documents/");
  fs::create_directory("Mes Documents");
  EXPECT_EQ(DocumentsFolder(environment), Profile() + u"/Mes Documents/");
  fs::create_directory("Mes documents");
  EXPECT_EQ(DocumentsFolder(environment), Profile() + u"/Mes documents/") << "the exact name goes first";
  EXPECT_EQ(DocumentsFolder(environment, DocumentsLayout::Newer), Profile() + u"/Documents/");
  environment.values[u"ALLUSERSPROFILE"] = u"C:\\ProgramData";
  EXPECT_EQ(DocumentsFolder(environment), Profile() + u"/Documents/");
}

TEST_F(DocumentsFolderTest, TheLastWordVersionIsFoundWithoutRegardToTheCaseOfItsName) {
  const auto version = [&] { return LastWordVersion(environment, DocumentsLayout::Newer, u"Roy.dat"); };
  EXPECT_EQ(version(), scratch.Path() / "Documents" / "Roy.doc") << "where it would stand";
  Write("Documents/ROY.DOC");
  EXPECT_EQ(version(), scratch.Path() / "Documents" / "ROY.DOC");
  Write("Documents/Roy.doc");
  EXPECT_EQ(version(), scratch.Path() / "Documents" / "Roy.doc");
}

}  // namespace
}  // namespace talvor
