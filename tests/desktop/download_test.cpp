// What a page may do to the disk: offer files, and keep a bounded store.

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QSet>
#include <QStandardPaths>
#include <QToolButton>
#include <map>

#include "desktop/browser/download_name.h"
#include "tests/desktop/browser_fixture.h"

namespace talvor {
namespace {

TEST(DownloadName, NamesNoPlaceAndHidesNothing) {
  const QString longStem(300, QChar(u'é'));
  const struct {
    const char* reason;
    QString offered, proposed;
  } Rows[] = {
      {"a plain name stays", QStringLiteral("Fiche de poste (2).pdf"),
       QStringLiteral("Fiche de poste (2).pdf")},
      {"way up", QStringLiteral("../.config/autostart/maj.desktop"), QStringLiteral("maj.desktop")},
      {"absolute", QStringLiteral("/etc/cron.d/x"), QStringLiteral("x")},
      {"way up with the other stroke", QStringLiteral("..\\..\\x.txt"), QStringLiteral("x.txt")},
      {"a hidden file", QStringLiteral("../.bashrc"), QStringLiteral("bashrc")},
      {"an option", QStringLiteral("--help"), QStringLiteral("help")},
      {"dots, dashes and blanks in turn", QStringLiteral(" .- .-x"), QStringLiteral("x")},
      {"an ending told backwards", QStringLiteral("cv\u202Efdp.sh"), QStringLiteral("cvfdp.sh")},
      {"marks that nobody sees", QStringLiteral("a\u200Bb\u2066c\u2069d\u061Ce\u00ADf"),
       QStringLiteral("abcdef")},
      {"line ends",
       QStringLiteral("a\r\nb\tc\u2028d\x7F"
                      "e"),
       QStringLiteral("abcde")},
      {"half a character", QStringLiteral("a") + QChar(0xD83D) + QStringLiteral("b"), QStringLiteral("ab")},
      {"an end that the eye takes for another", QStringLiteral("x.pdf . "), QStringLiteral("x.pdf")},
      {"a folder alone", QStringLiteral("dossier/"), QStringLiteral("Document")},
      {"nothing but dots", QStringLiteral("..."), QStringLiteral("Document")},
      {"nothing", QString(), QStringLiteral("Document")},
      {"too long: the ending stays", longStem + QStringLiteral(".pdf"),
       QString(98, QChar(u'é')) + QStringLiteral(".pdf")},
      {"too long, of two units a character", QStringLiteral("x") + QStringLiteral("😀").repeated(80),
       QStringLiteral("x") + QStringLiteral("😀").repeated(49)},
      {"an endless ending is no ending", QStringLiteral("a.") + QString(300, QLatin1Char('b')),
       QStringLiteral("a.") + QString(198, QLatin1Char('b'))},
  };
  for (const auto& row : Rows) EXPECT_EQ(DownloadName(row.offered), row.proposed) << row.reason;
}

TEST(DownloadName, ProgramsAreToldFromDocuments) {
  for (const char* program : {"maj.desktop", "x.sh", "x.PY", "x.pl", "x.exe", "x.AppImage", "x.deb", "x.jar",
                              "x.run", "x.js", "x.bat"})
    EXPECT_TRUE(RunsWhenOpened(QString::fromLatin1(program), {})) << program;
  for (const char* document :
       {"x.pdf", "x.odt", "x.doc", "x.docx", "x.txt", "x.png", "x.zip", "x.html", "x", "sh"})
    EXPECT_FALSE(RunsWhenOpened(QString::fromLatin1(document), {})) << document;
  EXPECT_TRUE(RunsWhenOpened(QStringLiteral("x.pdf"), QStringLiteral("application/x-shellscript")));
  EXPECT_FALSE(RunsWhenOpened(QStringLiteral("x.pdf"), QStringLiteral("application/pdf")));
}

class DownloadTest : public BrowserTest {
 protected:
  DownloadTest() {
    Pages().Profile().askWhere = [this](const QString& path) {
      proposed.append(path);
      return answer;
    };
  }
  static QString Downloads(const QString& name) {
    return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation) + QLatin1Char('/') + name;
  }
  QString Target(const char* name) { return QString::fromStdString((scratch.Path() / name).string()); }
  // A page that offers a file of seven bytes in one way of a script.
  static QByteArray PageThat(const QByteArray& acts, const QString& name) {
    QString quoted;
    for (const QChar c : name) quoted += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
    return "<!DOCTYPE html><meta charset=utf-8><body style='margin:0'><a id=a "
           "style='display:block;height:100vh'>Ouvrir</a><script>const a = document.getElementById('a');"
           "a.href = 'data:application/octet-stream,contenu'; a.download = '" +
           quoted.toLatin1() + "';" + acts + "</script>";
  }
  bool Offered() {
    return WaitFor([&] { return InPane("FichierProposé")->isVisible() || !proposed.isEmpty(); }, Patience);
  }
  QString OfferText() { return InPane<QLabel>("TexteFichierProposé")->text(); }
  void ClickPage() { QTest::mouseClick(Pages().View()->focusProxy(), Qt::LeftButton, {}, QPoint(50, 50)); }

  QStringList proposed;
  QString answer;
};

TEST_F(DownloadTest, AFileThatTheUserAsksForGoesWhereHeSays) {
  Browse(QStringLiteral("tableau.htm"));
  ASSERT_TRUE(Settled());
  Browse(QStringLiteral("document.bin"));  // the address was typed
  ASSERT_TRUE(WaitFor([&] { return proposed.size() == 1; }, Patience));
  EXPECT_EQ(proposed.first(), Downloads(QStringLiteral("annonce.bin")));
  answer = Target("choisi.bin");
  Browse(QStringLiteral("document.bin"));
  EXPECT_TRUE(WaitFor([&] { return QFileInfo(answer).size() == 7; }, Patience));
  ASSERT_TRUE(Settled());
  EXPECT_FALSE(InPane("AvisPage")->isVisible()) << "the page stays";
  EXPECT_EQ(Pages().BodyText(12), u"EMPLOI-LOIRE");

  answer = Target("clic.bin");
  proposed.clear();
  site.pages[QStringLiteral("lien.htm")] = PageThat("", QStringLiteral("../../fiche.bin"));
  Browse(QStringLiteral("lien.htm"));
  ASSERT_TRUE(Settled());
  ClickPage();
  EXPECT_TRUE(WaitFor([&] { return QFileInfo(answer).size() == 7; }, Patience));
  EXPECT_EQ(proposed, QStringList{Downloads(QStringLiteral("fiche.bin"))});
}

TEST_F(DownloadTest, APageAloneOpensNoBoxWhateverNameItGives) {
  const QStringList Names{QStringLiteral("../.config/autostart/maj.desktop"), QStringLiteral("../.bashrc"),
                          QStringLiteral("/etc/cron.d/x"), QStringLiteral("-rf"),
                          QStringLiteral("cv\u202Efdp.sh")};
  const QStringList Shown{QStringLiteral("maj.desktop"), QStringLiteral("bashrc"), QStringLiteral("x"),
                          QStringLiteral("rf"), QStringLiteral("cvfdp.sh")};
  for (qsizetype i = 0; i < Names.size(); ++i)
    for (const bool inItself : {false, true}) {
      SCOPED_TRACE(Names[i].toStdString() + (inItself ? ", data:" : ", http:"));
      const QByteArray page = PageThat("a.click();", Names[i]);
      site.pages[QStringLiteral("piege.htm")] = page;
      // The click that leads to a page allows nothing to that page.
      Browse(inItself ? QStringLiteral("data:text/html;base64,") + QString::fromLatin1(page.toBase64())
                      : QStringLiteral("piege.htm"));
      ASSERT_TRUE(Offered());
      EXPECT_EQ(proposed, QStringList());
      EXPECT_TRUE(OfferText().contains(Shown[i] + QStringLiteral("\u00A0»"))) << OfferText().toStdString();
      EXPECT_EQ(OfferText().contains(QStringLiteral("programme")),
                Names[i].contains(QStringLiteral("desktop")) || Names[i].contains(QStringLiteral(".sh")));
      QTest::mouseClick(InPane("IgnorerFichierProposé"), Qt::LeftButton);
      EXPECT_FALSE(InPane("FichierProposé")->isVisible());
    }
}

TEST_F(DownloadTest, AnOfferIsFetchedAtTheClickOfTheUserAlone) {
  const std::map<const char*, QByteArray> Ways{
      {"data", "a.click();"},
      {"blob", "a.href = URL.createObjectURL(new Blob(['contenu'])); a.click();"},
      {"http", "a.href = 'document.bin'; a.click();"},
  };
  for (const auto& [way, acts] : Ways) {
    SCOPED_TRACE(way);
    proposed.clear();
    answer = Target(way);
    site.pages[QStringLiteral("piege.htm")] = PageThat(acts, QStringLiteral("../maj.desktop"));
    Browse(QStringLiteral("piege.htm"));
    ASSERT_TRUE(Offered());
    QTest::mouseClick(InPane("EnregistrerFichierProposé"), Qt::LeftButton);
    EXPECT_TRUE(WaitFor([&] { return QFileInfo(answer).size() == 7; }, Patience));
    ASSERT_EQ(proposed.size(), 1);
    EXPECT_EQ(QFileInfo(proposed.first()).path(), Downloads({}).chopped(1));
    EXPECT_FALSE(InPane("FichierProposé")->isVisible());
  }
}

TEST_F(DownloadTest, AProgramIsSaidToBeOneEvenAfterAClick) {
  for (const QString& name : {QStringLiteral("maj.desktop"), QStringLiteral("maj.desktop. "),
                              QStringLiteral("maj.desk\u202Etop")}) {
    SCOPED_TRACE(name.toStdString());
    site.pages[QStringLiteral("lien.htm")] = PageThat("", name);
    Browse(QStringLiteral("lien.htm"));
    ASSERT_TRUE(Settled());
    ClickPage();
    ASSERT_TRUE(Offered());
    EXPECT_EQ(proposed, QStringList());
    EXPECT_TRUE(OfferText().contains(QStringLiteral("programme")));
    QTest::mouseClick(InPane("IgnorerFichierProposé"), Qt::LeftButton);
  }
}

TEST_F(DownloadTest, OneClickAllowsOneFile) {
  site.pages[QStringLiteral("lien.htm")] = PageThat(
      "a.addEventListener('click', () => { for (let i = 0; i < 2; i++) setTimeout(() => "
      "{ const b = a.cloneNode(); b.click(); }, 300 * (i + 1)); });",
      QStringLiteral("fiche.bin"));
  Browse(QStringLiteral("lien.htm"));
  ASSERT_TRUE(Settled());
  ClickPage();
  ASSERT_TRUE(WaitFor([&] { return InPane("FichierProposé")->isVisible(); }, Patience));
  Wait(800);
  EXPECT_EQ(proposed.size(), 1);
}

constexpr const char* Kept = "localStorage.x + ' ' + document.cookie";

TEST_F(DownloadTest, TheUserClearsWhatTheSitesKeep) {
  site.pages[QStringLiteral("garde.htm")] =
      "<script>localStorage.x = localStorage.x || Math.random();"
      "document.cookie = document.cookie || 'x=' + Math.random() + ';max-age=9999'</script>";
  Browse(QStringLiteral("garde.htm"));
  ASSERT_TRUE(Settled());
  const QString before = Inside(QString::fromLatin1(Kept));
  const QString folder = Pages().Profile().Store().Folder();

  dialogs.answer = false;
  Pages().AskToClearStore();
  EXPECT_EQ(Inside(QString::fromLatin1(Kept)), before);
  dialogs.answer = true;
  Pages().AskToClearStore();
  ASSERT_TRUE(Settled());
  EXPECT_EQ(Line("AdresseWeb"), site.Address(QStringLiteral("garde.htm")));
  const QStringList after = Inside(QString::fromLatin1(Kept)).split(QLatin1Char(' '));
  EXPECT_EQ(after.size(), 2);
  for (const QString& value : after) EXPECT_FALSE(before.contains(value)) << value.toStdString();

  // The next start goes on with the new store, and nothing is left of the old one.
  const QString now = Pages().Profile().Store().Folder();
  EXPECT_NE(now, folder);
  Restart();
  EXPECT_EQ(desktop->Candidatures().Pages().Profile().Store().Folder(), now);
  EXPECT_FALSE(QFileInfo::exists(folder));
}

TEST_F(DownloadTest, APageThatFillsTheDiskIsStoppedAndTheCookiesStay) {
  site.pages[QStringLiteral("garde.htm")] =
      "<script>document.cookie = document.cookie || 'x=' + Math.random() + ';max-age=9999'</script>";
  Browse(QStringLiteral("garde.htm"));
  ASSERT_TRUE(Settled());
  const QString cookie = Inside(QStringLiteral("document.cookie"));
  ASSERT_FALSE(cookie.isEmpty());
  site.pages[QStringLiteral("remplit.htm")] =
      "<script>(async () => { const cache = await caches.open('x'); const part = new Blob([new "
      "Uint8Array(20e6).fill(7)]);"
      "for (let i = 0; i < 30; i++) { await cache.put('/' + i, new Response(part)); document.title = i; "
      "} })()</script>";
  Browse(QStringLiteral("remplit.htm"));
  ASSERT_TRUE(
      WaitFor([&] { return InPane<QLabel>("AvisPage")->text().contains(QStringLiteral("disque")); }, 60'000));
  EXPECT_LT(SiteStore::SizeOf(Pages().Profile().Store().Folder()), SiteStore::Bound);
  Browse(QStringLiteral("garde.htm"));
  ASSERT_TRUE(Settled());
  EXPECT_EQ(Inside(QStringLiteral("document.cookie")), cookie);
}

TEST(SiteStore, OneThatHasOutgrownItsBoundBeginsWithItsCookies) {
  const ScratchFolder scratch;
  qputenv("XDG_DATA_HOME", QByteArray::fromStdString(scratch.Path().string()));
  const QString folder = SiteStore(SiteStore::Beginning::Kept).Folder();
  const auto put = [&](const QString& path, qint64 size) {
    QFile file(folder + QLatin1Char('/') + path);
    return file.open(QIODevice::WriteOnly) && file.resize(size);
  };
  ASSERT_TRUE(QDir(folder).mkpath(QStringLiteral("IndexedDB")));
  ASSERT_TRUE(put(QStringLiteral("Cookies"), 10));
  ASSERT_TRUE(put(QStringLiteral("IndexedDB/1"), SiteStore::Bound - 20));
  EXPECT_EQ(SiteStore::SizeOf(SiteStore(SiteStore::Beginning::Kept).Folder()), SiteStore::Bound - 10);
  ASSERT_TRUE(put(QStringLiteral("History"), 11));
  EXPECT_EQ(SiteStore::SizeOf(SiteStore(SiteStore::Beginning::Kept).Folder()), 10);
}

}  // namespace
}  // namespace talvor
