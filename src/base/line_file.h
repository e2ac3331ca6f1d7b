// The text files of the workspace: lines of code page 1252 that end in CR LF.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "base/text.h"

namespace talvor {

// The path of a name or path given as a text, and back; a path that is not UTF-8 has no text.
[[nodiscard]] std::filesystem::path PathOf(TextView text);
[[nodiscard]] std::optional<Text> TextOf(const std::filesystem::path& path);

// Documents and pictures are far smaller; a file beyond that, which a key may hold, is not read.
inline constexpr std::uintmax_t LargestFile = 256U << 20;

// The bytes of a regular file, or why it cannot be read to its end.
[[nodiscard]] Result<std::string> ReadBytes(const std::filesystem::path& file);

// Deletes the old file, then writes the new one and forces it to the disk. A file written in part is
// deleted again.
[[nodiscard]] Result<> WriteBytes(const std::filesystem::path& file, std::string_view bytes);

// The same for a file that is made piece by piece and need never be whole in memory: `make` hands the pieces
// on in their order. What it throws goes on to the caller, and the file is deleted.
using PieceSink = std::function<void(std::string_view)>;
[[nodiscard]] Result<> WritePieces(const std::filesystem::path& file,
                                   const std::function<void(const PieceSink&)>& make);

// CR LF or a lone CR ends a line; in a text without any CR, LF does. A line end at the very end begins
// no further line.
[[nodiscard]] std::vector<Text> SplitLines(TextView text);

// The lines of a file of the workspace, nothing when it cannot be read.
[[nodiscard]] std::optional<std::vector<Text>> ReadLines(const std::filesystem::path& file);

}  // namespace talvor
