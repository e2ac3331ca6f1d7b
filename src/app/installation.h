// The installation of the data folder, a step before the first start.
#pragma once

#include <filesystem>

#include "base/text.h"

namespace talvor {

// Lays down a data folder: its subfolders, an empty database, and the files delivered with the program
// (templates, sentences, job sites). What stands there already is left alone. Throws StoreError when
// the database, and std::filesystem::filesystem_error when a folder or file cannot be made.
void InstallerDossier(const std::filesystem::path& folder, const std::filesystem::path& delivered);

// True where copies of a database stand while the database itself is gone.
[[nodiscard]] bool DatabaseIsLost(const std::filesystem::path& folder);

// Where the files delivered with the program stand: beside an installed program, or in the sources of a
// build that has not been installed.
[[nodiscard]] std::filesystem::path DeliveredFiles();

}  // namespace talvor
