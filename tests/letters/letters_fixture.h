// A data folder with the form over fakes.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "base/code_page.h"
#include "base/line_file.h"
#include "letters/form_lettre.h"
#include "letters/letter_file.h"
#include "tests/fakes/fakes.h"
#include "tests/fakes/scratch_folder.h"
#include "workspace/document_keeping.h"

namespace talvor {

class LettersTest : public testing::Test {
 protected:
  LettersTest() {
    std::filesystem::create_directories("Lettres");
    std::filesystem::create_directories("CV");
  }

  static std::filesystem::path Write(const std::filesystem::path& file, TextView text) {
    EXPECT_FALSE(WriteBytes(file, ToCodePage(text)).Failed());
    return file;
  }

  static Text Bytes(const std::filesystem::path& file) {
    const auto bytes = ReadBytes(file);
    return bytes ? FromCodePage(*bytes) : u"(missing)";
  }

  ScratchFolder scratch;
  FakeClock clock{{2026, 3, 1}};
  FakeDialogs dialogs;
  FakeShell shell;
  Principale principale{shell};
  FormLettre form{principale, clock, dialogs, shell};
};

}  // namespace talvor
