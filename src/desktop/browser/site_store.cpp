#include "desktop/browser/site_store.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStandardPaths>
#include <algorithm>

namespace talvor {
namespace {

constexpr auto DataPlace = QStandardPaths::GenericDataLocation;
constexpr auto CachePlace = QStandardPaths::GenericCacheLocation;

// The first store has no number.
QString NameOf(int number) {
  const QString first = QStringLiteral("talvor-navigateur");
  return number == 0 ? first : first + QStringLiteral("-%1").arg(number);
}

QString FolderOf(QStandardPaths::StandardLocation place, int number) {
  return QStandardPaths::writableLocation(place) + QLatin1Char('/') + NameOf(number);
}

QList<int> NumbersIn(QStandardPaths::StandardLocation place) {
  QList<int> numbers;
  const QDir folder(QStandardPaths::writableLocation(place));
  for (const QString& name : folder.entryList({NameOf(0) + QLatin1Char('*')}, QDir::Dirs))
    if (const int number = name.section(QLatin1Char('-'), 2).toInt(); name == NameOf(number))
      numbers.append(number);
  return numbers;
}

int LastNumber() {
  const QList<int> numbers = NumbersIn(DataPlace) + NumbersIn(CachePlace);
  return numbers.isEmpty() ? 0 : *std::max_element(numbers.begin(), numbers.end());
}

bool HoldsCookies(const QString& file) { return file.startsWith(QStringLiteral("Cookies")); }

void KeepCookiesAlone(const QString& folder) {
  QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
  while (entries.hasNext()) {
    const QFileInfo entry(entries.next());
    if (entry.isDir() && !entry.isSymLink())
      QDir(entry.filePath()).removeRecursively();
    else if (!HoldsCookies(entry.fileName()))
      QFile::remove(entry.filePath());
  }
}

}  // namespace

SiteStore::SiteStore(Beginning beginning) : number_(LastNumber() + (beginning == Beginning::Kept ? 0 : 1)) {
  // From now on this is the last one, whatever becomes of the program.
  QDir().mkpath(Folder());
  if (beginning == Beginning::Kept && SizeOf(Folder()) > Bound) KeepCookiesAlone(Folder());
}

QString SiteStore::Folder() const { return FolderOf(DataPlace, number_); }

QString SiteStore::CacheFolder() const { return FolderOf(CachePlace, number_); }

void SiteStore::DropFormer() const {
  for (const auto place : {DataPlace, CachePlace})
    for (const int number : NumbersIn(place))
      if (number != number_) QDir(FolderOf(place, number)).removeRecursively();
}

qint64 SiteStore::SizeOf(const QString& folder) {
  qint64 size = 0;
  QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    files.next();
    size += files.fileInfo().size();
  }
  return size;
}

}  // namespace talvor
