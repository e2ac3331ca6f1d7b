#pragma once

#include "ads/site_directory.h"

namespace talvor {

// The start page of the embedded browser, as HTML: what one does here, and the directory's sites as
// links. It needs no network and no other file.
[[nodiscard]] Text StartPageHtml(const SiteDirectory& directory);

}  // namespace talvor
