// How documents of the workspace (CVs, letter models) are found, kept and saved.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string_view>

#include "base/result.h"
#include "base/text.h"

namespace talvor {

inline constexpr int KeptVersions = 5;
// The last version is always kept; the four before it lie at least so far apart.
inline constexpr std::chrono::minutes KeptVersionsApart{10};

// The path of a file in a folder. The two are joined as texts, so that a name that begins with "/"
// stays inside.
[[nodiscard]] std::filesystem::path FileIn(const std::filesystem::path& folder, TextView name);

// The file of that name in the folder of `file`, without regard to case; the one of exactly that name
// goes first. Nothing when there is none, or its folder cannot be read.
[[nodiscard]] std::optional<std::filesystem::path> ExistingFile(const std::filesystem::path& file);

// Where the old versions of a document stand: CV/a.dat gives Sauvegardes/CV/a.1.dat for the last one
// (`age` 1) up to a.5.dat for the oldest (`age` 5).
[[nodiscard]] std::filesystem::path KeptVersion(const std::filesystem::path& document, int age);

// Writes a document anew in the place of the old file, whatever the case of its name. Before that the
// old version joins the five kept ones and pushes one of them out; one that is kept already is not kept
// twice. When a step fails the old file stands as it was.
[[nodiscard]] Result<> SaveDocument(const std::filesystem::path& document, std::string_view bytes);

// Deletes a document, whose last version joins the kept ones before; a version that cannot be kept
// is not deleted.
[[nodiscard]] Result<> DeleteDocument(const std::filesystem::path& document);

// Gives a file another name, in its folder or elsewhere, on another disk as well. A name that is taken,
// in whatever case, is refused; the file itself may change the case of its name. When a step fails the file
// stands where it was.
[[nodiscard]] Result<> RenameDocument(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace talvor
