#pragma once

#include "capture/site_directory.h"

namespace talvor {

// The page has the colours of the window around it: the web engine does not tell a page which are wished.
enum class PagePalette { Light, Dark };

// The start page of the embedded browser, as HTML: what one does here, and the directory's sites as
// links. It needs no network and no other file.
[[nodiscard]] Text StartPageHtml(const SiteDirectory& directory, PagePalette palette);

}  // namespace talvor
