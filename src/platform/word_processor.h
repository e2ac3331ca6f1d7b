#pragma once

#include <filesystem>

#include "base/result.h"

namespace talvor {

// Writes a page as a document.
class PageExporter {
 public:
  virtual ~PageExporter() = default;
  // Writes the page (a file of the workspace) to `target`, whose ending tells the format. A document
  // of that name is replaced in one step once the new one is complete. The cause of a failure is a
  // sentence for the user; the old document stands then.
  [[nodiscard]] virtual Result<> Export(const std::filesystem::path& page,
                                        const std::filesystem::path& target) = 0;
};

// The word processor of the user's machine; writes .doc, .docx, .odt and .pdf.
class WordProcessor : public PageExporter {
 public:
  // True while a word processor has that file open.
  [[nodiscard]] virtual bool HasOpen(const std::filesystem::path& file) const = 0;
};

}  // namespace talvor
