// What a page may say about a file that it offers: a name, and nothing about the place.
#pragma once

#include <QString>

namespace talvor {

// The name under which an offered file is proposed, from the one that the page gives: no folder, no dot or
// dash in front (a hidden file, an option of a command), no control character or mark of direction (which
// show another ending than the true one), at most 200 bytes of UTF-8 with its ending kept. Never empty.
[[nodiscard]] QString DownloadName(const QString& offered);

// True for a file that acts when it is opened: a program, a script, a package, a launcher. `mimeType` is what
// the site says about it and may be empty; either sign is enough.
[[nodiscard]] bool RunsWhenOpened(const QString& name, const QString& mimeType);

}  // namespace talvor
