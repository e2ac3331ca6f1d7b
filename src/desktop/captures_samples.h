// What the forms show on their pictures: candidatures, CVs and letters of nobody.
#pragma once

#include <cstdint>
#include <filesystem>

#include "platform/clock.h"

namespace talvor {

// The number of the candidature whose fields are filled.
inline constexpr std::int16_t DetailedSample = 6;

// Into the empty database of the current directory.
void FillDatabase(const Clock& clock);

// Into a data folder that has been laid down.
void FillFiles(const std::filesystem::path& folder);

}  // namespace talvor
