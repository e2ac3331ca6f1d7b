#include "desktop/qt_documents.h"

#include <QProcess>
#include <QString>

#include "desktop/text_edge.h"
#include "desktop/window_titles.h"

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

}  // namespace

bool QtDocuments::Open(TextView target) {
  // A file whose name begins like an option is still a file.
  const QString argument = (target.starts_with(u'-') ? QStringLiteral("./") : QString()) + ToQt(target);
  return QProcess::startDetached(QStringLiteral("xdg-open"), {argument});
}

Text QtDocuments::ProgramFor(TextView file) const {
  const QString program = QStringLiteral("xdg-mime");
  const QString query = QStringLiteral("query");
  const QString kind = AnswerOf(program, {query, QStringLiteral("filetype"), ToQt(file)});
  return kind.isEmpty() ? Text{} : FromQt(AnswerOf(program, {query, QStringLiteral("default"), kind}));
}

std::vector<Text> QtDocuments::WindowTitles() const { return ReadWindowTitles(); }

}  // namespace talvor
