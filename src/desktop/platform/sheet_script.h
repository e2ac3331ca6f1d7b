// The look of a page in its preview: a sheet of paper on a desk.
#pragma once

#include <QPageLayout>
#include <QString>

namespace talvor {

struct SheetColours {
  QString desk, edge;  // as style sheets write them
};

// The room around the sheet on the desk, in pixels of the page.
inline constexpr int DeskMargin = 16;

// A script that gives the page on show the width, the least height and the margins of the sheet, and the
// rules that its author wrote for paper. It marks where a sheet ends, as nearly as that is known before the
// page is printed: lines and blocks that stay together may move the end up. Nothing of it is printed. Run
// again, it replaces what it did before.
[[nodiscard]] QString SheetScript(const QPageLayout& sheet, const SheetColours& colours);

}  // namespace talvor
