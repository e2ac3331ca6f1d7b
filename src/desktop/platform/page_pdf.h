// The page of a CV as a PDF, printed by the embedded browser, so that it looks as it does in the editor.
#pragma once

#include <QPageLayout>
#include <filesystem>

#include "platform/word_processor.h"

namespace talvor {

// A CV on paper. The margins that a template gives its paper are not taken by the browser.
[[nodiscard]] QPageLayout CvPageLayout();

class PagePdf : public PageExporter {
 public:
  // The interface takes no input meanwhile.
  [[nodiscard]] Result<> Export(const std::filesystem::path& page,
                                const std::filesystem::path& target) override;
};

}  // namespace talvor
