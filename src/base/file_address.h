// The address of a file, for programs that take addresses rather than paths.
#pragma once

#include <filesystem>

#include "base/text.h"

namespace talvor {

// "file://" and the absolute path, in which every byte that means something in an address is a percent
// code. A relative path counts from the current directory.
[[nodiscard]] Text FileAddress(const std::filesystem::path& file);

}  // namespace talvor
