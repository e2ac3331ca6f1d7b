#include "desktop/platform/sheet_script.h"

#include <QMarginsF>
#include <QRectF>

namespace talvor {
namespace {

// %1 and %2 are the width and height of the sheet, %3 to %6 its margins from the top on clockwise, %7 the
// height between them, all in millimetres; %8 and %9 the colours.
const QString Look = QStringLiteral(R"(@media screen {
html { background: %8 !important; position: relative; box-sizing: border-box; width: %1mm; height: fit-content;
  min-height: %2mm; margin: 16px auto; padding: %3mm %4mm %5mm %6mm; overflow: visible; }
html::before { content: ''; position: absolute; z-index: -1; top: 0; right: 0; bottom: 0; left: 0;
  background: #ffffff; box-shadow: 0 0 0 1px %9; }
html::after { content: ''; position: absolute; top: %3mm; right: 0; bottom: calc(%5mm + 2px); left: 0;
  pointer-events: none; background: repeating-linear-gradient(to bottom, transparent 0,
  transparent calc(%7mm - 1px), %9 calc(%7mm - 1px), %9 %7mm); }
body { height: fit-content; min-height: calc(%7mm - 16px); transform: translate(0); }
})");

const QString Script = QStringLiteral(R"((function () {
for (const sheet of document.styleSheets) {
  if (sheet.href) continue;  // a sheet from elsewhere is closed to us
  for (const rule of sheet.cssRules)
    if (rule.media && rule.media.mediaText === 'print') rule.media.mediaText = 'all';
}
const name = 'feuille-de-papier';
let style = document.getElementById(name);
if (!style) {
  style = document.createElement('style');
  style.id = name;
  document.documentElement.appendChild(style);
}
style.textContent = `%1`;
})())");

QString Millimetres(qreal length) { return QString::number(length, 'f', 2); }

}  // namespace

QString SheetScript(const QPageLayout& sheet, const SheetColours& colours) {
  const QRectF paper = sheet.fullRect(QPageLayout::Millimeter);
  const QMarginsF margins = sheet.margins(QPageLayout::Millimeter);
  return Script.arg(
      Look.arg(Millimetres(paper.width()), Millimetres(paper.height()), Millimetres(margins.top()),
               Millimetres(margins.right()), Millimetres(margins.bottom()), Millimetres(margins.left()),
               Millimetres(paper.height() - margins.top() - margins.bottom()), colours.desk, colours.edge));
}

}  // namespace talvor
