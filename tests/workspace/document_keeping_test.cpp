#include "workspace/document_keeping.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "base/line_file.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

TEST(DocumentKeeping, ANameThatIsAWholePathStaysInTheFolder) {
  const ScratchFolder scratch;
  fs::create_directory("CV");
  ASSERT_FALSE(WriteBytes("secret.dat", "x").Failed());
  const auto absolute = TextOf(scratch.Path() / "secret.dat");
  EXPECT_EQ(ExistingFile(FileIn("CV", *absolute)), std::nullopt);
  EXPECT_EQ(ToUtf8(*TextOf(FileIn("CV", *absolute))), "CV/" + ToUtf8(*absolute));
  EXPECT_EQ(FileIn("CV", u"été.dat"), fs::path("CV") / "été.dat");
}

}  // namespace
}  // namespace talvor
