// What the browser keeps between two runs, and what it fetches to the disk.
#pragma once

#include <QNetworkCookie>
#include <QUrl>
#include <QWebEngineProfile>
#include <functional>

#include "desktop/browser/page_boxes.h"
#include "desktop/browser/site_store.h"
#include "platform/dialogs.h"

class QWebEnginePage;

namespace talvor {

// A file that a page offers and that is fetched only if the user asks for it.
struct DownloadOffer {
  QUrl address;
  QString name;       // made harmless, see DownloadName
  bool runs = false;  // opened, it acts
};

class WebProfile : public QWebEngineProfile {
 public:
  WebProfile(Dialogs& dialogs, SiteStore::Beginning beginning);

  [[nodiscard]] const SiteStore& Store() const { return store_; }
  // Takes over the cookies of another profile, so that the user stays connected to his sites.
  void TakeCookies(const WebProfile& other);

  // Asks where a download goes, given the proposed path: the full path, empty when it is given up.
  std::function<QString(const QString& proposed)> askWhere;
  // Whether the user has just asked for this download; true once for each time that he does.
  std::function<bool(const QUrl& address)> IsAskedByUser;
  // A page offers a file by itself, or one that acts when it is opened.
  std::function<void(const DownloadOffer&)> OnOffer;

  // The user wants the offered file.
  void Fetch(QWebEnginePage& page, const DownloadOffer& offer);

 private:
  void Download(QWebEngineDownloadRequest* download);
  void Save(QWebEngineDownloadRequest& download, const QString& name);

  Dialogs& dialogs_;
  PageBoxes boxes_;
  QUrl wanted_;  // the offer that the user has taken up
  SiteStore store_;
  QList<QNetworkCookie> cookies_;
  bool asking_ = false;
};

}  // namespace talvor
