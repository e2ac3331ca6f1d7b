// A web page that reaches nothing: no scripts, no network, and of the disk one file or its folder.
#pragma once

#include <QWebEnginePage>
#include <QWebEngineUrlRequestInterceptor>

namespace talvor {

// What a sealed page may read besides its own file: nothing, or what lies in the folder of that file
// once every link has been followed.
enum class Reach { File, Folder };

// Lets through what is within reach of the file on show and blocks every other request.
class ReachGuard : public QWebEngineUrlRequestInterceptor {
 public:
  ReachGuard(Reach reach, QObject* parent) : QWebEngineUrlRequestInterceptor(parent), reach_(reach) {}
  // An empty address lets the blank page alone through.
  void SetFile(const QUrl& file) { file_ = file; }
  [[nodiscard]] bool Allows(const QUrl& address) const;
  void interceptRequest(QWebEngineUrlRequestInfo& request) override;

 private:
  Reach reach_;
  QUrl file_;
};

// For pages whose markup holds texts as foreign hands have written them. Its profile leaves nothing on
// the disk, texts without a declared encoding are read in the code page of the workspace.
class SealedPage : public QWebEnginePage {
 public:
  SealedPage(Reach reach, QObject* parent);
  ~SealedPage() override;

  // Loads a file. One that is on show already is read anew and keeps its scroll position.
  void ShowFile(const QUrl& file);
  void ShowBlank();

 protected:
  // No link, form or refresh leads away from the file, no window opens.
  bool acceptNavigationRequest(const QUrl& address, NavigationType type, bool isMainFrame) override;
  QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }

 private:
  SealedPage(Reach reach, QWebEngineProfile* profile, QObject* parent);
  void BuildWalls();

  Reach reach_;
  ReachGuard* guard_;
  QUrl file_;
};

}  // namespace talvor
