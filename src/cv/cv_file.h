// The CV file: lines «Name=Text» and «Index:Name=Value», in code page 1252.
#pragma once

#include <filesystem>
#include <optional>

#include "cv/cv_document.h"
#include "platform/dialogs.h"
#include "workspace/principale.h"

namespace talvor {

// CV/<name>.dat under the data folder.
[[nodiscard]] std::filesystem::path CvFile(TextView name);

// A line of the file taken apart.
struct CvLine {
  Text name;
  std::optional<std::size_t> index;  // 0-based, of a check line only
  Text value;                        // of a text line with its line breaks restored
};

// Nothing for a line that holds neither form: it is to be skipped. A leading digit always means a
// check line.
[[nodiscard]] std::optional<CvLine> ParseCvLine(TextView line);

// Sets the field or check that the line names; every other one stays as it was. The text field that
// was set, whether its text changed or not; null for a check and for a name that is not known.
const Field<CvDocument>* ApplyCvLine(CvDocument& cv, CvLine line);

// Pours a file over `cv`: what the file lacks keeps its value. False when it cannot be read; `cv` is
// then as it was.
[[nodiscard]] bool ReadCv(const std::filesystem::path& file, CvDocument& cv);

// The lines of the file in their order, each ended by CR LF. A lone CR in a value is not escaped and
// will split its line in reading; a literal "<N>" will come back as a line break.
[[nodiscard]] Text CvFileText(const CvDocument& cv);

// Names the CV if needed, puts `NomCV` into its form for file names and writes CV/<NomCV>.dat; then
// rebuilds the main menu. A failure is told to the user and gives false; the old file then stands in
// its place.
bool SauvegarderCV(CvDocument& cv, Dialogs& dialogs, Principale& principale);

}  // namespace talvor
