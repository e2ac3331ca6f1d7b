// Files of the folder `Modeles`: templates, pictures and the rendered page.
#pragma once

#include <filesystem>
#include <optional>

#include "base/text.h"

namespace talvor {

// False for a name that holds a folder: such a name, from a foreign CV, must not lead elsewhere.
[[nodiscard]] bool IsBareName(TextView name);

// The path of a file of that name, be it there or not.
[[nodiscard]] std::filesystem::path ModelFile(TextView name);

// The file of that name without regard to case; nothing when there is none or the name is not bare.
[[nodiscard]] std::optional<std::filesystem::path> ExistingModelFile(TextView name);

// Copies the photo of a CV onto Photo.jpg, where the page looks for it. False when the CV has none;
// Photo.jpg is left alone then.
[[nodiscard]] bool PutPhotoOnPage(TextView nomCV);

// The text of a template or any other page, its lines ended by CR LF; nothing when it cannot be read.
[[nodiscard]] std::optional<Text> ReadTemplate(const std::filesystem::path& file);

}  // namespace talvor
