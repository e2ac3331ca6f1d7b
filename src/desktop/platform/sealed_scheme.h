// The addresses under which a sealed page sees the files within its reach.
#pragma once

#include <QByteArray>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

namespace talvor {

// What a sealed page may read besides its own file: nothing, or what lies in the folder of that file
// once every link has been followed.
enum class Reach { File, Folder };

// Before the application is made.
void RegisterSealedScheme();

// The address of a file for a sealed page, and back. What is no such address leads to an empty path.
[[nodiscard]] QUrl SealedAddress(const QString& file);
[[nodiscard]] QString FileOfSealed(const QUrl& address);

// Markup in which nothing speaks to another machine before a request does. The engine opens connections at a
// mere hint in a `link`, past every guard of requests; what stays of such an element means nothing.
[[nodiscard]] QByteArray WithoutHints(QByteArray markup);

// Reads for a sealed page, and refuses what is out of its reach.
class SealedFiles : public QWebEngineUrlSchemeHandler {
 public:
  SealedFiles(Reach reach, QObject* parent) : QWebEngineUrlSchemeHandler(parent), reach_(reach) {}
  // An empty path puts everything out of reach.
  void SetFile(const QString& file) { file_ = file; }
  [[nodiscard]] bool Allows(const QUrl& address) const;
  void requestStarted(QWebEngineUrlRequestJob* job) override;

 private:
  Reach reach_;
  QString file_;
};

}  // namespace talvor
