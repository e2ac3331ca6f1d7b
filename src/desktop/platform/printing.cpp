#include "desktop/platform/printing.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <QWebEngineView>
#include <set>

namespace talvor {
namespace {

// The views whose page is on its way.
std::set<const QWebEngineView*>& AtWork() {
  static std::set<const QWebEngineView*> views;
  return views;
}

void BeginWork(QWebEngineView& view) {
  AtWork().insert(&view);
  QObject::connect(&view, &QObject::destroyed, [&view] { AtWork().erase(&view); });
}

}  // namespace

void PrintPage(QWebEngineView& view, const std::shared_ptr<QPrinter>& printer,
               const std::function<void(bool)>& done) {
  BeginWork(view);
  QObject::connect(
      &view, &QWebEngineView::printFinished, &view,
      [&view, printer, done](bool printed) {
        AtWork().erase(&view);
        done(printed);
      },
      Qt::SingleShotConnection);
  view.print(printer.get());
}

void WritePdf(QWebEngineView& view, const QString& file, const QPageLayout& layout,
              const std::function<void(bool)>& done) {
  BeginWork(view);
  // One connection an order: the page answers each of them once.
  QObject::connect(
      view.page(), &QWebEnginePage::pdfPrintingFinished, &view,
      [&view, done](const QString&, bool stands) {
        AtWork().erase(&view);
        done(stands);
      },
      Qt::SingleShotConnection);
  view.page()->printToPdf(file, layout);
}

void OutliveWhilePrinting(QWebEngineView& view) {
  if (!AtWork().contains(&view)) return;
  view.hide();
  view.setParent(nullptr);
  QObject::connect(&view, &QWebEngineView::printFinished, &view, &QObject::deleteLater);
  QObject::connect(view.page(), &QWebEnginePage::pdfPrintingFinished, &view, &QObject::deleteLater);
}

void FinishPrinting() {
  constexpr int LimitMilliseconds = 15000;
  constexpr int StepMilliseconds = 50;
  const QDeadlineTimer limit(LimitMilliseconds);
  while (!AtWork().empty() && !limit.hasExpired()) {
    QEventLoop turn;
    QTimer::singleShot(StepMilliseconds, &turn, &QEventLoop::quit);
    turn.exec(QEventLoop::ExcludeUserInputEvents);
  }
}

}  // namespace talvor
