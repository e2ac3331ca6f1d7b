// LibreOffice as the word processor: run without a window, under a profile of its own, so that one that
// the user has open is not disturbed.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>

#include "platform/word_processor.h"

namespace talvor {

class LibreOffice : public WordProcessor {
 public:
  // Called several times a second while a conversion runs.
  std::function<void()> whileWaiting;
  // The program, and how long one conversion may take.
  std::string program = "soffice";
  std::chrono::milliseconds limit{60000};

  [[nodiscard]] Result<> Export(const std::filesystem::path& page,
                                const std::filesystem::path& target) override;
  // By the lock file that the programs of its family put beside a document.
  [[nodiscard]] bool HasOpen(const std::filesystem::path& file) const override;

 private:
  [[nodiscard]] Result<> Convert(const std::filesystem::path& page,
                                 const std::filesystem::path& target) const;
};

// True for an ending that LibreOffice is asked to write: .doc, .docx, .odt and .pdf, in any case.
[[nodiscard]] bool IsDocumentEnding(TextView ending);

}  // namespace talvor
