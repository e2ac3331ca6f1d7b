// A web page that reaches nothing: no scripts, no network, and of the disk one file alone.
#pragma once

#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>

namespace talvor {

// Lets the one address through and blocks every other request.
class OneFileOnly : public QWebEngineUrlRequestInterceptor {
 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
  void Allow(const QUrl& address) { allowed_ = address; }
  void interceptRequest(QWebEngineUrlRequestInfo& request) override;

 private:
  QUrl allowed_;
};

// For pages whose markup holds texts as foreign hands have written them. Its profile leaves nothing on
// the disk, texts without a declared encoding are read in the code page of the workspace.
class SealedPage : public QWebEnginePage {
 public:
  explicit SealedPage(QObject* parent);
  ~SealedPage() override;

  // Loads a file, the only thing that the page may read.
  void LoadFile(const QUrl& address);

 protected:
  // No link leads away from the file, no window opens.
  bool acceptNavigationRequest(const QUrl& address, NavigationType type, bool isMainFrame) override;
  QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }

 private:
  explicit SealedPage(QWebEngineProfile* profile, QObject* parent);

  OneFileOnly* guard_;
  QUrl file_;
};

}  // namespace talvor
