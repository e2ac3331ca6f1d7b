// What a failure of the file system says to the user.
#pragma once

#include <exception>
#include <filesystem>
#include <system_error>

#include "base/text.h"

namespace talvor {

// The cause of a failure in French, without a capital and without a full stop: «l’accès est refusé».
// One that has no words of its own is told by its number.
[[nodiscard]] Text CauseOf(const std::error_code& failure);

// The whole report of such a failure, with the file it is about.
[[nodiscard]] Text ReportOf(const std::filesystem::filesystem_error& failure);

// The report of whatever ends the program. Failures of the program's own are told in their own words;
// those of the language's library, which are English, with French words around.
[[nodiscard]] Text ReportOf(const std::exception& failure);

}  // namespace talvor
