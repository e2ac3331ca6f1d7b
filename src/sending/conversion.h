// The conversion: the rendered page of the CV as a document in the user's documents folder.
#pragma once

#include <filesystem>

#include "cv/cv_document.h"
#include "platform/dialogs.h"
#include "platform/documents.h"
#include "platform/environment.h"
#include "platform/shell.h"
#include "platform/word_processor.h"
#include "sending/hourglass.h"

namespace talvor {

// `ConvertirWord` and `ConvertirODF` of the main window. They convert the page that the editor shows and
// do nothing at all while the editor is not visible. Failures are told to the user.
class CvConversion {
 public:
  struct Surroundings {
    const CvDocument& editor;  // the CV in the editor
    const Environment& environment;
    Shell& shell;
    Dialogs& dialogs;
    Documents& documents;
    WordProcessor& wordProcessor;
    PageExporter& printer;  // writes the page as a PDF, as it looks in the editor
    WaitCursor waitCursor;
  };

  explicit CvConversion(const Surroundings& around) : around_(around) {}

  // Replaces the document «.doc» and opens it. The old one goes first, and where it cannot go nothing
  // is converted; it comes back when the conversion fails.
  void ConvertirWord();
  // The same as «.odt» or as PDF; the old document stands until the new one is complete.
  void ConvertirODF();
  void ConvertirPDF();

 private:
  [[nodiscard]] bool CanConvert(const std::filesystem::path& target);
  [[nodiscard]] std::filesystem::path Target(TextView ending) const;
  [[nodiscard]] Result<> Export(PageExporter& exporter, const std::filesystem::path& target) const;
  void Replace(TextView ending, PageExporter& exporter);

  Surroundings around_;
};

}  // namespace talvor
