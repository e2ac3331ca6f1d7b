#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QWebEngineScript>
#include <QWebEngineView>
#include <array>
#include <filesystem>
#include <fstream>
#include <functional>
#include <utility>
#include <vector>

#include "base/file_address.h"
#include "base/line_file.h"
#include "desktop/desks/report_desk.h"
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
    EXPECT_TRUE(
        WaitFor([&] { return !desktop->Reports().Preview().Window()->View().page()->isLoading(); }, 20000));
    QString text;
    bool come = false;
    desktop->Reports().Preview().Window()->View().page()->toPlainText([&](const QString& answer) {
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
  ASSERT_NE(desktop->Reports().Preview().Window(), nullptr);
  EXPECT_TRUE(desktop->Reports().Preview().Window()->isVisible());
  EXPECT_TRUE(PageText().contains(QStringLiteral("Éclusier de nuit")));
  QString sheet;
  EXPECT_TRUE(WaitFor([&] {
    desktop->Reports().Preview().Window()->View().page()->runJavaScript(
        QStringLiteral("(s => s.offsetWidth + ' ' + s.offsetHeight + ' ' + "
                       "getComputedStyle(s).backgroundColor)(document.documentElement)"),
        QWebEngineScript::ApplicationWorld, [&](const QVariant& answer) { sheet = answer.toString(); });
    Wait(50);
    return sheet == QStringLiteral("1123 794 rgb(231, 237, 239)");
  })) << sheet.toStdString()
      << ": an A4 sheet on its side lies on a grey desk";

  bool saved = false;
  bool done = false;
  desktop->Reports().Preview().Window()->SavePdf(QStringLiteral("liste.pdf"), [&](bool stands) {
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

// The modal windows that come one after the other, each with what the user does there.
void InTurn(std::vector<std::function<void(QDialog&)>> acts) {
  if (acts.empty()) return;
  QTimer::singleShot(50, qApp, [acts = std::move(acts)]() mutable {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    const auto act = std::move(acts.front());
    acts.erase(acts.begin());
    InTurn(std::move(acts));
    act(*dialog);
  });
}

TEST_F(ReportWindowTest, APdfGetsItsEndingAndTheRightsOfTheUserAndReplacesNothingUnasked) {
  Click("Image7");
  PrintPreviewWindow& window = *desktop->Reports().Preview().Window();
  ASSERT_TRUE(WaitFor([&] { return window.IsComplete(); }, 20000));
  const auto name = [](const char* text) {
    return [file = QDir::current().filePath(QString::fromUtf8(text))](QDialog& dialog) {
      dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(file);
      dialog.accept();
    };
  };
  const auto answer = [](QMessageBox::StandardButton button) {
    return [button](QDialog& dialog) {
      auto* box = qobject_cast<QMessageBox*>(&dialog);
      ASSERT_NE(box, nullptr);
      box->button(button)->click();
    };
  };
  const auto click = [&] {
    QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("EnregistrerPdf")), Qt::LeftButton);
  };
  const auto stands = [&](const char* file) {
    return WaitFor([&] { return ReadBytes(file).value_or("").starts_with("%PDF"); }, 20000);
  };
  const mode_t before = ::umask(0027);
  InTurn({name("liste du 1.3")});
  click();
  EXPECT_TRUE(stands("liste du 1.3.pdf"));
  ::umask(before);
  EXPECT_EQ(std::filesystem::status("liste du 1.3.pdf").permissions(), std::filesystem::perms{0640});

  std::ofstream("ancien.pdf") << "ancien";
  InTurn({name("ancien"), answer(QMessageBox::Cancel), name("autre.PDF")});
  click();
  EXPECT_TRUE(stands("autre.PDF"));
  EXPECT_EQ(ReadBytes("ancien.pdf"), "ancien");
  InTurn({name("ancien"), answer(QMessageBox::Ok)});
  click();
  EXPECT_TRUE(stands("ancien.pdf"));
}

TEST_F(ReportWindowTest, WithoutAPrinterTheSheetIsProposedAmongTheDocumentsOfTheUser) {
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "there is a printer";
  const QByteArray before = qgetenv("HOME");
  qputenv("HOME", QByteArray::fromStdString(scratch.Path().string()));
  const QString home = QDir::homePath();
  for (const QString& folder : {home, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)}) {
    QDir().mkpath(folder);
    Click("Image7");
    PrintPreviewWindow& window = *desktop->Reports().Preview().Window();
    QString proposed;
    InTurn({[&](QDialog& dialog) {
      proposed = static_cast<QPrintDialog&>(dialog).printer()->outputFileName();
      dialog.reject();
    }});
    QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("Imprimer")), Qt::LeftButton);
    EXPECT_EQ(proposed, folder + QStringLiteral("/Talvor.pdf"));
  }
  qputenv("HOME", before);
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
