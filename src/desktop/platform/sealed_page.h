// A web page that reaches nothing: no scripts, no network, and of the disk one file or its folder. It sees
// files under addresses of its own and never as files of the disk.
#pragma once

#include <QWebEnginePage>
#include <QWebEngineUrlRequestInterceptor>

#include "desktop/platform/sealed_scheme.h"

namespace talvor {

// Lets nothing through but what the files of a sealed page answer for, and the blank page.
class ReachGuard : public QWebEngineUrlRequestInterceptor {
 public:
  explicit ReachGuard(const SealedFiles& files, QObject* parent)
      : QWebEngineUrlRequestInterceptor(parent), files_(files) {}
  void interceptRequest(QWebEngineUrlRequestInfo& request) override;

 private:
  const SealedFiles& files_;
};

// For pages whose markup holds texts as foreign hands have written them. Its profile leaves nothing on
// the disk, texts without a declared encoding are read in the code page of the workspace.
class SealedPage : public QWebEnginePage {
 public:
  SealedPage(Reach reach, QObject* parent);
  ~SealedPage() override;

  // Loads a file, given by its path. One that is on show already is read again and keeps its scroll position.
  void ShowFile(const QString& file);
  void ShowBlank();

 protected:
  // No link, form or refresh leads away from the file, no window opens.
  bool acceptNavigationRequest(const QUrl& address, NavigationType type, bool isMainFrame) override;
  QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }

 private:
  SealedPage(Reach reach, QWebEngineProfile* profile, QObject* parent);
  void BuildWalls();

  Reach reach_;
  SealedFiles* files_;
  QUrl file_;
};

}  // namespace talvor
