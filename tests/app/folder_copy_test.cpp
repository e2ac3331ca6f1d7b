#include "app/folder_copy.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <system_error>

#include "base/line_file.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

// The real steps, counted.
class CountedSteps : public CopySteps {
 public:
  Result<> CopyFile(const fs::path& from, const fs::path& to,
                    const std::function<bool(std::uintmax_t)>& onBytes) override {
    ++files;
    return refuse ? std::make_error_code(std::errc::io_error) : CopySteps::CopyFile(from, to, onBytes);
  }

  int files = 0;
  bool refuse = false;
};

class FolderCopyTest : public testing::Test {
 protected:
  FolderCopyTest() {
    fs::create_directories("a/CV");
    EXPECT_FALSE(WriteBytes("a/CV/cv.dat", "cv").Failed());
  }
  // What the copy is refused with, empty when it has been made.
  Text Refusal(const fs::path& source, const fs::path& destination) {
    try {
      CopyContents(source, destination, {}, steps);
    } catch (const CopyFailure& failure) {
      return FromUtf8(failure.what()).value_or(u"not UTF-8");
    }
    return {};
  }

  ScratchFolder scratch;
  CountedSteps steps;
};

TEST_F(FolderCopyTest, AFolderIsNotCopiedIntoItselfUnderWhateverName) {
  fs::create_directory_symlink("a", "lien");
  for (const char* destination : {"a/b", "a/CV", "a/x/y", "lien/b", "./a/../a/b"})
    EXPECT_TRUE(Contains(Refusal("a", destination), u"se trouve dans le dossier à copier")) << destination;
  for (const char* destination : {"a", "a/", "lien", "a/CV/.."})
    EXPECT_TRUE(Contains(Refusal("a", destination), u"ne peut pas être copié sur lui-même")) << destination;
  EXPECT_EQ(steps.files, 0);
  EXPECT_EQ(Refusal("a", "ab"), u"") << "a name that only begins alike";
}

TEST_F(FolderCopyTest, LinksAreFollowedAndOnesThatLeadBackEndThere) {
  fs::create_directory("ailleurs");
  ASSERT_FALSE(WriteBytes("ailleurs/f", "f").Failed());
  fs::create_directory_symlink("../../ailleurs", "a/CV/lien");
  fs::create_directory_symlink("..", "a/CV/tour");
  EXPECT_EQ(Refusal("a", "b"), u"");
  EXPECT_EQ(ReadBytes("b/CV/lien/f"), "f");
  EXPECT_FALSE(fs::is_symlink("b/CV/lien"));
  EXPECT_FALSE(fs::exists("b/CV/tour"));
  EXPECT_EQ(steps.files, 2);
}

TEST_F(FolderCopyTest, WhatIsNoOrdinaryFileIsNamedAndNothingIsCopied) {
  ASSERT_EQ(::mkfifo("a/CV/tube", 0600), 0);
  EXPECT_EQ(Refusal("a", "b"), u"Le fichier «\u00A0" + *TextOf(fs::absolute("a/CV/tube")) +
                                   u"\u00A0» n’est pas un fichier ordinaire.");
  fs::remove("a/CV/tube");
  fs::create_symlink("absent", "a/CV/lien");
  EXPECT_TRUE(Contains(Refusal("a", "b"), u"ce fichier ou ce dossier n’existe pas"));
  EXPECT_EQ(steps.files, 0);
  EXPECT_FALSE(fs::exists("b"));
}

TEST_F(FolderCopyTest, ADiskWithoutTheRoomIsToldBeforeTheFirstByte) {
  // A file of nothing but a hole takes no room itself.
  const std::uintmax_t room = fs::space(".").available;
  ASSERT_FALSE(WriteBytes("a/trou", "").Failed());
  fs::resize_file("a/trou", room + 10'000'000'000);
  steps.refuse = true;
  const Text told = Refusal("a", "absent/b");
  EXPECT_TRUE(told.starts_with(u"Il n’y a pas assez de place dans «\u00A0" + *TextOf(scratch.Path()) +
                               u"\u00A0»\u00A0: la copie demande "))
      << ToUtf8(told);
  EXPECT_EQ(steps.files, 0);
  EXPECT_FALSE(fs::exists("absent"));
}

}  // namespace
}  // namespace talvor
