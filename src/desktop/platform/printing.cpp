#include "desktop/platform/printing.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QPointer>
#include <QSaveFile>
#include <QTimer>
#include <QWebEngineView>
#include <map>

namespace talvor {
namespace {

// The views whose page is on its way, and whether they have lost their window.
std::map<QWebEngineView*, bool>& AtWork() {
  static std::map<QWebEngineView*, bool> views;
  return views;
}

void BeginWork(QWebEngineView& view) {
  AtWork().try_emplace(&view, false);
  QObject::connect(&view, &QObject::destroyed, [&view] { AtWork().erase(&view); });
}

void EndWork(QWebEngineView& view) {
  const auto work = AtWork().extract(&view);
  if (!work.empty() && work.mapped()) view.deleteLater();
}

// In one step, with the rights that a new file of the user has; a file that stands there stays until then.
bool WriteWhole(const QString& file, const QByteArray& bytes) {
  QSaveFile target(file);
  return !bytes.isEmpty() && target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size() &&
         target.commit();
}

}  // namespace

void PrintPage(QWebEngineView& view, const std::shared_ptr<QPrinter>& printer,
               const std::function<void(bool)>& done) {
  BeginWork(view);
  QObject::connect(
      &view, &QWebEngineView::printFinished, &view,
      [&view, printer, done](bool printed) {
        EndWork(view);
        done(printed);
      },
      Qt::SingleShotConnection);
  view.print(printer.get());
}

void WritePdf(QWebEngineView& view, const QString& file, const QPageLayout& layout,
              const std::function<void(bool)>& done) {
  BeginWork(view);
  view.page()->printToPdf(
      [kept = QPointer<QWebEngineView>(&view), file, done](const QByteArray& bytes) {
        if (!kept) return;
        EndWork(*kept);
        done(WriteWhole(file, bytes));
      },
      layout);
}

void OutliveWhilePrinting(QWebEngineView& view) {
  const auto work = AtWork().find(&view);
  if (work == AtWork().end()) return;
  view.hide();
  view.setParent(nullptr);
  work->second = true;
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
