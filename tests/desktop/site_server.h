// A small site on the loopback address, for the browser: the pages of a folder, and a few addresses that
// behave badly.
#pragma once

#include <utility>

#include <QFile>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

namespace talvor {

class SiteServer : public QTcpServer {
 public:
  explicit SiteServer(QString folder) : folder_(std::move(folder)) {
    listen(QHostAddress::LocalHost);
    connect(this, &QTcpServer::newConnection, this, [this] {
      while (QTcpSocket* socket = nextPendingConnection())
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Read(*socket); });
    });
  }

  [[nodiscard]] QString Address(const QString& path) const {
    return QStringLiteral("http://127.0.0.1:%1/%2").arg(serverPort()).arg(path);
  }

  // What is asked for under "react/" is taken from here.
  QString reactFolder;
  // The pages that tests make, by path.
  QHash<QString, QByteArray> pages;
  QStringList asked;

 private:
  void Read(QTcpSocket& socket) {
    const QByteArray request = socket.readAll();
    if (!request.contains("\r\n\r\n")) return;
    const QString path = QUrl::fromEncoded(request.split(' ').value(1)).path().mid(1);
    asked.append(path);
    if (path.startsWith(QStringLiteral("muet"))) return;  // never answers
    if (path == QStringLiteral("document.bin"))
      return Answer(socket,
                    "Content-Type: application/octet-stream\r\nContent-Disposition: attachment; "
                    "filename=\"annonce.bin\"\r\n",
                    QByteArray("contenu"));
    if (pages.contains(path))
      return Answer(socket, "Content-Type: text/html; charset=utf-8\r\n", pages[path]);
    const bool react = path.startsWith(QStringLiteral("react/"));
    QFile file(react ? reactFolder + path.mid(5) : folder_ + QLatin1Char('/') + path);
    if (!file.open(QIODevice::ReadOnly))
      return Answer(socket, "Content-Type: text/html\r\n", "", "404 Not Found");
    const bool script = path.endsWith(QStringLiteral(".js"));
    const bool json = path.endsWith(QStringLiteral(".json"));
    Answer(socket,
           script ? "Content-Type: text/javascript\r\n"
                  : (json ? "Content-Type: application/json\r\n" : "Content-Type: text/html\r\n"),
           file.readAll());
  }

  static void Answer(QTcpSocket& socket, const QByteArray& headers, const QByteArray& body,
                     const QByteArray& status = "200 OK") {
    socket.write("HTTP/1.1 " + status + "\r\nConnection: close\r\nContent-Length: " +
                 QByteArray::number(body.size()) + "\r\n" + headers + "\r\n" + body);
    socket.disconnectFromHost();
  }

  QString folder_;
};

}  // namespace talvor
