#include "desktop/browser/web_profile.h"

#include <utility>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>
#include <QWebEngineCookieStore>
#include <QWebEngineDownloadRequest>
#include <QWebEnginePage>

#include "base/raised.h"
#include "desktop/browser/download_name.h"
#include "desktop/browser/start_page.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

QString DownloadsFolder() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
  QDir().mkpath(folder);
  return folder;
}

QString AskWithDialog(const QString& proposed) {
  return QFileDialog::getSaveFileName(QApplication::activeWindow(),
                                      QCoreApplication::translate("WebProfile", "Enregistrer le fichier"),
                                      proposed);
}

}  // namespace

WebProfile::WebProfile(Dialogs& dialogs, SiteStore::Beginning beginning)
    : QWebEngineProfile(QStringLiteral("talvor")),
      askWhere(AskWithDialog),
      dialogs_(dialogs),
      store_(beginning) {
  setPersistentStoragePath(store_.Folder());
  setCachePath(store_.CacheFolder());
  setHttpCacheMaximumSize(SiteStore::CacheBound);
  setHttpAcceptLanguage(QStringLiteral("fr-FR,fr;q=0.9,en;q=0.5"));
  InstallStartPage(*this);
  connect(this, &QWebEngineProfile::downloadRequested, this, &WebProfile::Download);
  const auto forget = [this](const QNetworkCookie& cookie) {
    cookies_.removeIf([&](const QNetworkCookie& kept) { return kept.hasSameIdentifier(cookie); });
  };
  connect(cookieStore(), &QWebEngineCookieStore::cookieRemoved, this, forget);
  connect(cookieStore(), &QWebEngineCookieStore::cookieAdded, this,
          [this, forget](const QNetworkCookie& cookie) {
            forget(cookie);
            cookies_.append(cookie);
          });
  cookieStore()->loadAllCookies();
}

void WebProfile::TakeCookies(const WebProfile& other) {
  for (QNetworkCookie cookie : other.cookies_) {
    QUrl origin;
    origin.setScheme(cookie.isSecure() ? QStringLiteral("https") : QStringLiteral("http"));
    origin.setHost(cookie.domain().startsWith(QLatin1Char('.')) ? cookie.domain().sliced(1)
                                                                : cookie.domain());
    // The cookie of one host stays with that host.
    if (!cookie.domain().startsWith(QLatin1Char('.'))) cookie.setDomain({});
    cookieStore()->setCookie(cookie, origin);
  }
}

void WebProfile::Fetch(QWebEnginePage& page, const DownloadOffer& offer) {
  wanted_ = offer.address;
  page.download(offer.address, offer.name);
}

void WebProfile::Download(QWebEngineDownloadRequest* download) {
  // The ending that counts is that of the name as it will be written.
  const QString name = DownloadName(download->downloadFileName());
  const DownloadOffer offer{download->url(), name, RunsWhenOpened(name, download->mimeType())};
  const bool wanted = !wanted_.isEmpty() && offer.address == std::exchange(wanted_, QUrl());
  const bool asked = wanted || (IsAskedByUser && IsAskedByUser(offer.address) && !offer.runs);
  if (!asked) {
    download->cancel();
    if (OnOffer) OnOffer(offer);
    return;
  }
  // Without an answer here the engine gives the download up.
  if (asking_ || !boxes_.Grant()) return download->cancel();
  Save(*download, offer.name);
}

void WebProfile::Save(QWebEngineDownloadRequest& download, const QString& name) {
  const Raised asking(asking_);
  const QPointer<QWebEngineDownloadRequest> kept(&download);
  const QString path = askWhere(DownloadsFolder() + QLatin1Char('/') + name);
  if (!kept) return;
  if (path.isEmpty()) return download.cancel();
  const QFileInfo file(path);
  download.setDownloadDirectory(file.absolutePath());
  download.setDownloadFileName(file.fileName());
  connect(&download, &QWebEngineDownloadRequest::stateChanged, this,
          [this, name = FromQt(file.fileName())](QWebEngineDownloadRequest::DownloadState state) {
            if (state == QWebEngineDownloadRequest::DownloadInterrupted)
              dialogs_.Tell(u"Le téléchargement de «\u00A0" + name + u"\u00A0» n’a pas abouti.");
          });
  download.accept();
}

}  // namespace talvor
