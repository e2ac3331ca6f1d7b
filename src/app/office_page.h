// The rendered page as a word processor is to read it.
#pragma once

#include <filesystem>
#include <string>

#include "base/text.h"

namespace talvor {

// A copy of a page that stands by itself, in plain ASCII. Pictures that lie in `folder` are put into
// the page with their height beside their width: a word processor would only point to them, and takes a
// width alone for a square. The texts of a page come from anywhere: of its tags stay those, with those
// attributes, that make the word processor read no other file, reach no network and run nothing.
[[nodiscard]] std::string OfficePage(TextView page, const std::filesystem::path& folder);

}  // namespace talvor
