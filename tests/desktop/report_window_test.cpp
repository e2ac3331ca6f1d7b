#include <sys/inotify.h>
#include <unistd.h>

#include <QLabel>
#include <QProcess>
#include <QTcpServer>
#include <QWebEngineView>
#include <array>
#include <fstream>

#include "base/file_address.h"
#include "desktop/platform/print_preview.h"
#include "tests/desktop/desktop_fixture.h"
#include "tracking/status_lists.h"

namespace talvor {
namespace {

class ReportWindowTest : public DesktopTest {
 protected:
  ReportWindowTest() { environment.values[u"temp"] = *FromUtf8(scratch.Path().string()); }

  void Insert(const Candidature& row) {
    Database base = Database::Open(clock);
    base.Save(base.BeginRow(), row);
  }

  // The text of the page on show, once it has come with all it fetches.
  QString PageText() {
    EXPECT_TRUE(WaitFor([&] { return !desktop->Preview().Window()->View().page()->isLoading(); }, 20000));
    QString text;
    bool come = false;
    desktop->Preview().Window()->View().page()->toPlainText([&](const QString& answer) {
      text = answer;
      come = true;
    });
    EXPECT_TRUE(WaitFor([&] { return come; }, 20000));
    return text;
  }
};

TEST_F(ReportWindowTest, TheListIsPreviewedAndItsPdfHoldsTheRows) {
  Insert({.Intitule = u"Éclusier de nuit", .Societe = u"Voies & Canaux", .Statut = u"NON EMISE"});
  Click("Image7");
  ASSERT_NE(desktop->Preview().Window(), nullptr);
  EXPECT_TRUE(desktop->Preview().Window()->isVisible());
  EXPECT_TRUE(PageText().contains(QStringLiteral("Éclusier de nuit")));

  bool saved = false;
  bool done = false;
  desktop->Preview().Window()->SavePdf(QStringLiteral("liste.pdf"), [&](bool stands) {
    saved = stands;
    done = true;
  });
  ASSERT_TRUE(WaitFor([&] { return done; }, 30000));
  ASSERT_TRUE(saved);
  QProcess reader;
  reader.start(QStringLiteral("pdftotext"), {QStringLiteral("liste.pdf"), QStringLiteral("-")});
  ASSERT_TRUE(reader.waitForFinished());
  const QString text = QString::fromUtf8(reader.readAllStandardOutput());
  for (const char* expected :
       {"Liste des candidatures", "Éclusier de nuit", "Voies & Canaux", "depuis Talvor"})
    EXPECT_TRUE(text.contains(QString::fromUtf8(expected))) << expected << " in " << text.toStdString();
}

// A folder that tells whether a file of it has been opened.
class WatchedFolder {
 public:
  explicit WatchedFolder(const std::filesystem::path& folder) {
    std::filesystem::create_directory(folder);
    EXPECT_GE(::inotify_add_watch(watch_, folder.c_str(), IN_OPEN), 0);
  }
  ~WatchedFolder() { ::close(watch_); }
  WatchedFolder(const WatchedFolder&) = delete;
  WatchedFolder& operator=(const WatchedFolder&) = delete;

  // Since the last question.
  bool Opened() {
    std::array<char, 4096> events;
    return ::read(watch_, events.data(), events.size()) > 0;
  }

 private:
  int watch_ = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
};

TEST_F(ReportWindowTest, AHostileRowReachesNeitherScriptsNorNetwork) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  const Text address = u"http://127.0.0.1:" + NumberText(server.serverPort()) + u"/";
  Insert({.Intitule = u"<script>document.body.textContent='SCRIPT'</script>",
          .Societe = u"<img src='" + address + u"i.png'><link rel=stylesheet href='" + address + u"s.css'>",
          .Reference = u"<meta http-equiv=refresh content=\"0;url=" + address + u"\">",
          .Statut = u"<body onload=\"location='" + address + u"'\">reste"});
  Click("Image7");
  Wait(500);  // what was to go out would have gone by now
  const QString text = PageText();
  EXPECT_TRUE(text.contains(QStringLiteral("Liste des candidatures"))) << text.toStdString();
  EXPECT_TRUE(text.contains(QStringLiteral("reste")));
  EXPECT_FALSE(server.hasPendingConnections());
}

TEST_F(ReportWindowTest, AHostileRowReachesNoOtherFile) {
  WatchedFolder folder("disque");
  for (const char* file : {"disque/f.htm", "disque/i.png", "disque/s.css", "disque/o.txt"})
    std::ofstream{file} << "td { display: none }";
  ASSERT_TRUE(folder.Opened()) << "the watch sees an opening";
  const Text disk = FileAddress("disque") + u"/";
  Insert({.Origine = u"<img src='" + disk + u"i.png'><iframe src='" + disk + u"f.htm'></iframe>",
          .Reference = u"<link rel=stylesheet href='" + disk + u"s.css'><object data='" + disk +
                       u"o.txt'></object><embed src='" + disk + u"o.txt'>",
          .Statut = u"reste"});
  Click("Image7");
  Wait(500);  // what was to be read would have been read by now
  const QString text = PageText();
  EXPECT_TRUE(text.contains(QStringLiteral("reste"))) << text.toStdString();
  EXPECT_FALSE(folder.Opened());
}

TEST_F(ReportWindowTest, TheStatisticsShowTheRowsAsTheyStandAtOpening) {
  Insert({.Societe = u"Acme <b>", .DateRDV = u"17/03/2026", .Statut = Text{ListeStatutsComptes[2]}});
  for (const char* count : {"1", "2"}) {
    desktop->Windows().Show(u"FormStat");
    QWidget* window = desktop->Windows().WindowOf(u"FormStat");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->findChild<QLabel*>(QStringLiteral("Nb2"))->text(), QString::fromUtf8(count));
    EXPECT_TRUE(window->findChild<QLabel*>(QStringLiteral("RDV"))
                    ->text()
                    .startsWith(QStringLiteral("Entretien avec la société Acme <b> le 17/03/2026")));
    QTest::mouseClick(window->findChild<QPushButton*>(QStringLiteral("BoutonTLV1")), Qt::LeftButton);
    EXPECT_TRUE(WaitFor([&] { return desktop->Windows().WindowOf(u"FormStat") == nullptr; }));
    Insert({.Statut = Text{ListeStatutsComptes[2]}});
  }
}

}  // namespace
}  // namespace talvor
