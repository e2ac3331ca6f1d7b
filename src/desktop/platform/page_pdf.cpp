#include "desktop/platform/page_pdf.h"

#include <QEventLoop>
#include <QPageLayout>
#include <QTimer>
#include <QWebEngineView>
#include <filesystem>
#include <memory>

#include "app/temporary_folder.h"
#include "base/failure_cause.h"
#include "base/line_file.h"
#include "desktop/platform/sealed_page.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

constexpr int LimitMilliseconds = 60000;

// Waits until `loop` is left; false beyond the limit.
bool Waited(QEventLoop& loop) {
  bool inTime = true;
  QTimer limit;
  limit.setSingleShot(true);
  QObject::connect(&limit, &QTimer::timeout, &loop, [&] {
    inTime = false;
    loop.quit();
  });
  limit.start(LimitMilliseconds);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  return inTime;
}

bool Shown(SealedPage& page, const QString& file) {
  QEventLoop loop;
  bool well = false;
  QObject::connect(&page, &QWebEnginePage::loadFinished, &loop, [&](bool ok) {
    well = ok;
    loop.quit();
  });
  page.ShowFile(file);
  return Waited(loop) && well;
}

// The page as a document, empty when it could not be made.
QByteArray Printed(QWebEnginePage& page) {
  // The answer may come when nobody waits any more.
  const auto loop = std::make_shared<QEventLoop>();
  const auto document = std::make_shared<QByteArray>();
  page.printToPdf(
      [loop, document](const QByteArray& bytes) {
        *document = bytes;
        loop->quit();
      },
      CvPageLayout());
  return Waited(*loop) ? *document : QByteArray();
}

}  // namespace

QPageLayout CvPageLayout() {
  constexpr QMarginsF Millimetres(15, 12, 15, 12);
  return {QPageSize(QPageSize::A4), QPageLayout::Portrait, Millimetres, QPageLayout::Millimeter};
}

Result<> PagePdf::Export(const fs::path& page, const fs::path& target) {
  const auto source = TextOf(fs::absolute(page));
  QWebEngineView view;
  view.resize(800, 1000);  // wide enough for the page at its own size
  auto* sealed = new SealedPage(Reach::Folder, &view);
  view.setPage(sealed);
  if (!source || !Shown(*sealed, ToQt(*source))) return Failure(u"La page du CV n’a pas pu être lue.");
  try {
    // Beside the target, so that the whole document takes its name in one step.
    const TemporaryFolder outcome(target.parent_path());
    const fs::path made = outcome.Path() / "cv.pdf";
    const QByteArray document = Printed(*sealed);
    if (document.isEmpty()) return Failure(u"La page du CV n’a pas pu être imprimée en PDF.");
    if (const auto written = WriteBytes(made, document.toStdString()); written.Failed())
      throw fs::filesystem_error({}, made, written.Code());
    fs::rename(made, target);
  } catch (const fs::filesystem_error& fault) {
    return Failure(u"Le document n’a pas pu être écrit dans le dossier " +
                   Quoted(TextOf(target.parent_path()).value_or(Text{})) + u"\u00A0: " +
                   CauseOf(fault.code()) + u".");
  }
  return {};
}

}  // namespace talvor
