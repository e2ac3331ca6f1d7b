#include "desktop/browser/web_profile.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>
#include <QWebEngineDownloadRequest>

#include "base/raised.h"
#include "desktop/browser/start_page.h"
#include "desktop/widgets/text_edge.h"

namespace talvor {
namespace {

QString FolderUnder(QStandardPaths::StandardLocation place) {
  return QStandardPaths::writableLocation(place) + QStringLiteral("/talvor-navigateur");
}

QString AskWithDialog(const QString& proposed) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
  return QFileDialog::getSaveFileName(QApplication::activeWindow(),
                                      QCoreApplication::translate("WebProfile", "Enregistrer le fichier"),
                                      folder + QLatin1Char('/') + proposed);
}

}  // namespace

WebProfile::WebProfile(Dialogs& dialogs)
    : QWebEngineProfile(QStringLiteral("talvor")), AskWhere(AskWithDialog), dialogs_(dialogs) {
  setPersistentStoragePath(FolderUnder(QStandardPaths::GenericDataLocation));
  setCachePath(FolderUnder(QStandardPaths::GenericCacheLocation));
  setHttpAcceptLanguage(QStringLiteral("fr-FR,fr;q=0.9,en;q=0.5"));
  InstallStartPage(*this);
  connect(this, &QWebEngineProfile::downloadRequested, this, &WebProfile::Download);
}

void WebProfile::Download(QWebEngineDownloadRequest* download) {
  // Without an answer here the engine gives the download up.
  if (asking_ || !boxes_.Grant()) return download->cancel();
  const Raised asking(asking_);
  const QPointer<QWebEngineDownloadRequest> kept(download);
  const QString path = AskWhere(download->suggestedFileName());
  if (!kept) return;
  if (path.isEmpty()) return download->cancel();
  const QFileInfo file(path);
  download->setDownloadDirectory(file.absolutePath());
  download->setDownloadFileName(file.fileName());
  connect(download, &QWebEngineDownloadRequest::stateChanged, this,
          [this, name = FromQt(file.fileName())](QWebEngineDownloadRequest::DownloadState state) {
            if (state == QWebEngineDownloadRequest::DownloadInterrupted)
              dialogs_.Tell(u"Le téléchargement de «\u00A0" + name + u"\u00A0» n’a pas abouti.");
          });
  download->accept();
}

}  // namespace talvor
