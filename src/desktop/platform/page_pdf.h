// The page of a CV as a PDF, printed by the embedded browser, so that it looks as it does in the editor.
#pragma once

#include <filesystem>

#include "platform/word_processor.h"

namespace talvor {

class PagePdf : public PageExporter {
 public:
  // The interface takes no input meanwhile.
  [[nodiscard]] Result<> Export(const std::filesystem::path& page,
                                const std::filesystem::path& target) override;
};

}  // namespace talvor
