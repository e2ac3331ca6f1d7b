// A page of the browser on its way to a printer.
#pragma once

#include <QPrinter>
#include <functional>
#include <memory>

class QWebEngineView;

namespace talvor {

// Prints the page of a view, in the background; `done` hears whether it was printed. The printer stays
// until then.
void PrintPage(QWebEngineView& view, const std::shared_ptr<QPrinter>& printer,
               const std::function<void(bool)>& done);

// Writes the page of a view to a PDF file, in the background as well; `done` hears whether it stands.
void WritePdf(QWebEngineView& view, const QString& file, const QPageLayout& layout,
              const std::function<void(bool)>& done);

// The window around a view is about to go: a view whose page is being printed leaves it and goes by itself
// once it is through, for the engine does not bear the loss of a page in the midst of its printing.
void OutliveWhilePrinting(QWebEngineView& view);

// Waits until nothing is being printed any more, a quarter of a minute at most: the program ends.
void FinishPrinting();

}  // namespace talvor
