#include "desktop/browser/download_name.h"

#include <QMimeDatabase>
#include <QSet>

namespace talvor {
namespace {

constexpr qsizetype LongestName = 200;   // bytes
constexpr qsizetype LongestEnding = 20;  // characters; a longer one is no ending
const QString Separators = QStringLiteral("/\\");

// Characters that take no place of their own, or a misleading one.
bool IsHidden(char32_t character) {
  if (character == QChar::ReplacementCharacter) return true;  // half of a character
  switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return true;
    default:
      return false;
  }
}

QString BaseName(const QString& path) {
  qsizetype start = path.size();
  while (start > 0 && !Separators.contains(path[start - 1])) --start;
  return path.sliced(start);
}

QString WithoutHidden(const QString& text) {
  QString shown;
  for (const char32_t character : text.toUcs4())
    if (!IsHidden(character)) shown += QChar::fromUcs4(character);
  return shown;
}

bool IsBare(QChar c) { return c == QLatin1Char('.') || c == QLatin1Char('-') || c.isSpace(); }

QString Trimmed(QString name) {
  while (!name.isEmpty() && IsBare(name.front())) name.remove(0, 1);
  while (!name.isEmpty() && (name.back() == QLatin1Char('.') || name.back().isSpace())) name.chop(1);
  return name;
}

// Cut in the stem, whole characters at a time.
QString Shortened(const QString& name) {
  const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
  const QString ending = dot > 0 && name.size() - dot <= LongestEnding ? name.sliced(dot) : QString();
  QString stem = name.chopped(ending.size());
  while ((stem + ending).toUtf8().size() > LongestName) stem.chop(stem.back().isLowSurrogate() ? 2 : 1);
  return stem + ending;
}

// Endings that the shared table of kinds knows as documents or not at all, although a double click on one
// starts something.
const QSet<QString>& EndingsThatRun() {
  static const QSet<QString> Endings{
      QStringLiteral("appimage"), QStringLiteral("apk"),     QStringLiteral("bat"),
      QStringLiteral("cmd"),      QStringLiteral("com"),     QStringLiteral("cpl"),
      QStringLiteral("deb"),      QStringLiteral("desktop"), QStringLiteral("directory"),
      QStringLiteral("exe"),      QStringLiteral("flatpak"), QStringLiteral("flatpakref"),
      QStringLiteral("hta"),      QStringLiteral("jar"),     QStringLiteral("jnlp"),
      QStringLiteral("js"),       QStringLiteral("lnk"),     QStringLiteral("mjs"),
      QStringLiteral("msi"),      QStringLiteral("pif"),     QStringLiteral("ps1"),
      QStringLiteral("reg"),      QStringLiteral("rpm"),     QStringLiteral("run"),
      QStringLiteral("scr"),      QStringLiteral("service"), QStringLiteral("snap"),
      QStringLiteral("so"),       QStringLiteral("vbs"),     QStringLiteral("wsf"),
      QStringLiteral("xpi")};
  return Endings;
}

bool IsKindThatRuns(const QMimeType& kind) {
  for (const char* program : {"application/x-executable", "application/x-desktop",
                              "application/x-shellscript", "application/x-ms-dos-executable",
                              "application/x-msdownload", "application/vnd.microsoft.portable-executable"})
    if (kind.inherits(QString::fromLatin1(program))) return true;
  return false;
}

}  // namespace

QString DownloadName(const QString& offered) {
  const QString name = Shortened(Trimmed(WithoutHidden(BaseName(offered))));
  return name.isEmpty() ? QStringLiteral("Document") : name;
}

bool RunsWhenOpened(const QString& name, const QString& mimeType) {
  if (EndingsThatRun().contains(name.section(QLatin1Char('.'), -1).toLower())) return true;
  const QMimeDatabase kinds;
  for (const QMimeType& kind : kinds.mimeTypesForFileName(name))
    if (IsKindThatRuns(kind)) return true;
  return IsKindThatRuns(kinds.mimeTypeForName(mimeType));
}

}  // namespace talvor
