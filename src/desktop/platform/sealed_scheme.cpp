#include "desktop/platform/sealed_scheme.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace talvor {
namespace {

const QByteArray SchemeName = QByteArrayLiteral("talvor-feuille");
const QString Host = QStringLiteral("feuille");

}  // namespace

void RegisterSealedScheme() {
  QWebEngineUrlScheme scheme(SchemeName);
  scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
  QWebEngineUrlScheme::registerScheme(scheme);
}

QUrl SealedAddress(const QString& file) {
  QUrl address;
  address.setScheme(QString::fromLatin1(SchemeName));
  address.setHost(Host);
  address.setPath(QFileInfo(file).absoluteFilePath());
  return address;
}

QString FileOfSealed(const QUrl& address) {
  const bool ours = address.scheme() == QLatin1String(SchemeName) && address.host() == Host;
  return ours ? address.path(QUrl::FullyDecoded) : QString();
}

QByteArray WithoutHints(QByteArray markup) {
  static const QByteArray Element = QByteArrayLiteral("<link");
  const QByteArray small = markup.toLower();
  for (qsizetype at = small.indexOf(Element); at >= 0; at = small.indexOf(Element, at + 1))
    markup.replace(at + 1, Element.size() - 1, "lien");
  return markup;
}

bool SealedFiles::Allows(const QUrl& address) const {
  const QString asked = FileOfSealed(address);
  if (file_.isEmpty() || asked.isEmpty()) return false;
  if (reach_ == Reach::File) return asked == file_;
  const QString file = QFileInfo(asked).canonicalFilePath();
  const QString folder = QFileInfo(QFileInfo(file_).path()).canonicalFilePath();
  return !file.isEmpty() && !folder.isEmpty() && file.startsWith(folder + QLatin1Char('/'));
}

void SealedFiles::requestStarted(QWebEngineUrlRequestJob* job) {
  if (!Allows(job->requestUrl())) return job->fail(QWebEngineUrlRequestJob::RequestDenied);
  const QString path = FileOfSealed(job->requestUrl());
  auto* file = new QFile(path, job);
  if (!file->open(QIODevice::ReadOnly)) return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
  const QMimeType kind = QMimeDatabase().mimeTypeForFile(path);
  if (!kind.inherits(QStringLiteral("text/plain"))) return job->reply(kind.name().toLatin1(), file);
  auto* page = new QBuffer(job);
  page->setData(WithoutHints(file->readAll()));
  page->open(QIODevice::ReadOnly);
  job->reply(kind.name().toLatin1(), page);
}

}  // namespace talvor
