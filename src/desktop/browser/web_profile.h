// What the browser keeps between two runs, and what it fetches to the disk.
#pragma once

#include <QWebEngineProfile>
#include <functional>

#include "desktop/browser/page_boxes.h"
#include "platform/dialogs.h"

namespace talvor {

// Cookies and cache stand in folders of their own, outside the data folder.
class WebProfile : public QWebEngineProfile {
 public:
  explicit WebProfile(Dialogs& dialogs);

  // Asks where a download goes, given the proposed name: the full path, empty when it is given up.
  std::function<QString(const QString& proposed)> AskWhere;

 private:
  void Download(QWebEngineDownloadRequest* download);

  Dialogs& dialogs_;
  PageBoxes boxes_;
  bool asking_ = false;
};

}  // namespace talvor
