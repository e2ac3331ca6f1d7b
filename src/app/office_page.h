// The rendered page as a word processor is to read it.
#pragma once

#include <filesystem>
#include <string>

#include "base/text.h"

namespace talvor {

// A copy of a page that stands by itself, in plain ASCII. Pictures that lie in `folder` are put into
// the page with their height beside their width: a word processor would only point to them, and takes a
// width alone for a square. Whatever would make the word processor read another file or the network
// (other pictures, scripts, frames, style sheets of elsewhere) is left out: the texts of a page come
// from anywhere.
[[nodiscard]] std::string OfficePage(TextView page, const std::filesystem::path& folder);

}  // namespace talvor
