#include "desktop/platform/qt_documents.h"

#include <vector>

#include <unistd.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>

#include "desktop/platform/window_titles.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

// The first line that a program writes, empty when it fails or takes too long.
QString AnswerOf(const QString& program, const QStringList& arguments) {
  constexpr int LimitMilliseconds = 3000;
  QProcess process;
  process.start(program, arguments, QIODevice::ReadOnly);
  if (!process.waitForFinished(LimitMilliseconds) || process.exitStatus() != QProcess::NormalExit ||
      process.exitCode() != 0)
    return {};
  return QString::fromUtf8(process.readAllStandardOutput()).section(QLatin1Char('\n'), 0, 0).trimmed();
}

// The name of a program as its desktop entry tells it, in French where it does; without an entry, that of
// the entry itself.
QString NameOfProgram(const QString& entry) {
  QFile file(QStandardPaths::locate(QStandardPaths::ApplicationsLocation, entry));
  if (!file.open(QIODevice::ReadOnly)) return entry;
  QString name = entry;
  while (!file.atEnd()) {
    const QString line = QString::fromUtf8(file.readLine()).trimmed();
    // The entry is the first group; those behind it are its actions.
    if (line.startsWith(QLatin1Char('[')) && line != QStringLiteral("[Desktop Entry]")) break;
    if (line.startsWith(QStringLiteral("Name[fr]="))) return line.section(QLatin1Char('='), 1);
    if (line.startsWith(QStringLiteral("Name="))) name = line.section(QLatin1Char('='), 1);
  }
  return name;
}

}  // namespace

bool QtDocuments::Open(TextView target) {
  // A file whose name begins like an option is still a file.
  const QString argument = (target.starts_with(u'-') ? QStringLiteral("./") : QString()) + ToQt(target);
  // The opener may live as long as the program that it has started, and both longer than this one.
  auto* opener = new QProcess;
  opener->setStandardInputFile(QProcess::nullDevice());
  opener->setStandardOutputFile(QProcess::nullDevice());
  opener->setStandardErrorFile(QProcess::nullDevice());
  opener->setChildProcessModifier([] { ::setsid(); });
  opener->start(QStringLiteral("xdg-open"), {argument});
  if (!opener->waitForStarted()) {
    delete opener;
    return false;
  }
  // Later it would be the viewer that ends badly, long after the document was seen.
  constexpr int RefusalMilliseconds = 10000;
  QObject::connect(opener, &QProcess::finished, opener, &QObject::deleteLater);
  QObject::connect(opener, &QProcess::finished, &life_,
                   [this, target = Text{target}, limit = QDeadlineTimer(RefusalMilliseconds)](
                       int code, QProcess::ExitStatus status) {
                     const bool refused = code != 0 || status != QProcess::NormalExit;
                     if (refused && !limit.hasExpired() && OnRefused) OnRefused(target);
                   });
  return true;
}

Text QtDocuments::ProgramFor(TextView file) const {
  if (!QFileInfo::exists(ToQt(file))) return {};
  const QString kind = QMimeDatabase().mimeTypeForFile(ToQt(file)).name();
  const QString entry =
      AnswerOf(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"), kind});
  return entry.isEmpty() ? Text{} : FromQt(NameOfProgram(entry));
}

std::vector<Text> QtDocuments::WindowTitles() const { return ReadWindowTitles(); }

}  // namespace talvor
