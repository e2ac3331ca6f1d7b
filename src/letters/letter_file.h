// The file of a letter model: lines «Name=Text» and «Index:Name=Value», in code page 1252.
#pragma once

#include <filesystem>

#include "letters/letter_model.h"
#include "platform/dialogs.h"
#include "workspace/principale.h"

namespace talvor {

// Lettres/<name>.dat under the data folder.
[[nodiscard]] std::filesystem::path LetterFile(TextView name);

// The lines of the file in their order, each ended by CR LF. A `Corps` with a line end is cut there in
// its indexed line, and a literal "<N>" of a plain line will come back as a line end.
[[nodiscard]] Text LetterFileText(const LetterModel& model);

// Sets the field, sentence or flag that the line names; a line that names none changes nothing. A flag
// sets its pair as well.
void ApplyLetterLine(LetterModel& model, TextView line);

// Pours a file over `model`: what the file lacks keeps its value. False when it cannot be read; `model`
// is then as it was.
[[nodiscard]] bool ReadLetter(const std::filesystem::path& file, LetterModel& model);

// Takes from a CV file the fields that a letter has under the same name. A file that cannot be read
// changes nothing.
void TakeFieldsOfCv(const std::filesystem::path& file, LetterModel& model);

// Names the model if needed, writes Lettres/<NomLettre>.dat and rebuilds the main menu. False when the
// file was not written, of which the user is told nothing here; the old one then stands in its
// place. A model without any name is told to the user and written all the same.
bool EnregistrerLettre(LetterModel& model, Dialogs& dialogs, Principale& principale);

}  // namespace talvor
