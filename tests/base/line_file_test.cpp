#include "base/line_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "tests/fakes/scratch_folder.h"

namespace talvor {
namespace {

TEST(WritePieces, PiecesOfEverySizeComeInTheirOrder) {
  const ScratchFolder folder;
  std::string all;
  const auto written = WritePieces("pieces", [&all](const PieceSink& write) {
    for (const std::size_t size : {1u, 60'000u, 5'535u, 1u, 0u, 65'536u, 65'537u, 200'000u, 3u})
      for (const char c : {'a', 'b'}) {
        all += std::string(size, c);
        write(std::string(size, c));
      }
  });
  EXPECT_FALSE(written.Failed());
  EXPECT_EQ(*ReadBytes("pieces"), all);
}

TEST(WritePieces, AFileThatIsNotFinishedIsNotThere) {
  const ScratchFolder folder;
  EXPECT_THROW(static_cast<void>(WritePieces("pieces",
                                             [](const PieceSink& write) {
                                               write(std::string(70'000, 'a'));
                                               throw std::runtime_error("read no further");
                                             })),
               std::runtime_error);
  EXPECT_FALSE(std::filesystem::exists("pieces"));
  EXPECT_TRUE(WritePieces("absent/pieces", [](const PieceSink& write) { write("a"); }).Failed());
  EXPECT_TRUE(WritePieces("/dev/full/pieces", [](const PieceSink& write) { write("a"); }).Failed());
}

}  // namespace
}  // namespace talvor
