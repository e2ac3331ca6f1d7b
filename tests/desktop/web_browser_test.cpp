#include <signal.h>
#include <time.h>

#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QProgressBar>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>
#include <vector>

#include "tests/desktop/browser_fixture.h"
#include "tracking/form_cand_messages.h"

namespace talvor {
namespace {

TEST_F(BrowserTest, APageIsBrowsedRatedAndCapturedIntoARow) {
  Browse(QStringLiteral("tableau.htm"));
  ASSERT_TRUE(Settled());
  EXPECT_EQ(Line("AdresseWeb"), site.Address(QStringLiteral("tableau.htm")));
  EXPECT_GE(Web().Evaluation.ScoreAnnonce, 5);
  EXPECT_GT(InPane<QProgressBar>("Niveau")->value(), 250);
  ASSERT_TRUE(InPane("FrameWeb")->isVisible());
  ClickLink("CaptureSel");
  ASSERT_EQ(Count(), 1);
  const Candidature row = Read(1);
  EXPECT_EQ(row.Intitule, u"Caissier De Nuit");
  EXPECT_EQ(row.Reference, u"CN 4321");
  EXPECT_EQ(row.www, FromQt(site.Address(QStringLiteral("tableau.htm"))));
  EXPECT_TRUE(Contains(row.Description, u"\r\n"));
  EXPECT_EQ(Line("Intitule"), QStringLiteral("Caissier De Nuit"));
  EXPECT_EQ(Rows().size(), 2);
}

TEST_F(BrowserTest, ASelectionIsCapturedWhereverTheFocusHasGone) {
  Browse(QStringLiteral("tableau.htm"));
  ASSERT_TRUE(Settled());
  Inside(QStringLiteral("getSelection().selectAllChildren(document.getElementById('profil'))"));
  ASSERT_TRUE(WaitFor([&] { return Pages().View()->hasSelection(); }, Patience));
  ClickLink("CaptureSel");
  EXPECT_EQ(dialogs.told, std::vector<Text>{Text{messages::NotIdentified}}) << "the selection holds no title";
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(Pages().BodyText(12), u"EMPLOI-LOIRE");

  // Behind a notice the selection is out of the user's sight.
  Inside(QStringLiteral("getSelection().selectAllChildren(document.body)"));
  Browse(QStringLiteral("file:///etc/passwd"));
  ASSERT_TRUE(WaitFor([&] { return InPane("AvisPage")->isVisible(); }, Patience));
  ASSERT_TRUE(Pages().View()->hasSelection());
  ClickLink("CaptureSel");
  EXPECT_EQ(Count(), 0);
}

TEST_F(BrowserTest, TheAddressIsNotTakenAwayWhileItHandlesItsKey) {
  site.pages[QStringLiteral("boucle.htm")] =
      "<p>Boucle</p><script>onload = () => setTimeout(() => { for (;;); }, 2500)</script>";
  Browse(QStringLiteral("boucle.htm"));
  ASSERT_TRUE(Settled());
  Wait(2500);
  // The page does not answer, and the form is closed while it is asked.
  const QPointer<QLineEdit> address(InPane<QLineEdit>("AdresseWeb"));
  QTimer::singleShot(300, &desktop->Main(), [&] { desktop->Windows().Unload(u"FormCand"); });
  QTest::keyClick(address, Qt::Key_Return);
  EXPECT_TRUE(address) << "gone under its own event";
  EXPECT_TRUE(WaitFor([&] { return !address; }, Patience));
  Wait(2000);
  EXPECT_TRUE(failures.empty());
}

TEST_F(BrowserTest, APageThatFillsItselfIsCapturedAsItStands) {
  Browse(QStringLiteral("moderne.htm"));
  ASSERT_TRUE(Settled());
  ASSERT_TRUE(WaitFor([&] { return Pages().View()->title() == QStringLiteral("Offre affichée"); }, Patience));
  ClickLink("CaptureSel");
  ASSERT_EQ(Count(), 1);
  EXPECT_TRUE(Contains(Read(1).Intitule, u"Infirmier"));
  EXPECT_EQ(Read(1).Reference, u"IB 77");
}

TEST_F(BrowserTest, AListOfAdvertisementsScoresLowAndClosesTheStrip) {
  Browse(QStringLiteral("tableau.htm"));
  ASSERT_TRUE(Settled());
  Browse(QStringLiteral("liste.htm"));
  ASSERT_TRUE(Settled());
  EXPECT_GT(Web().Evaluation.ScoreMetiers, 9);
  EXPECT_LT(Web().Evaluation.ScoreAnnonce, 5);
  EXPECT_EQ(InPane<QProgressBar>("Niveau")->value(), 0);
  EXPECT_FALSE(InPane("FrameWeb")->isVisible());
  QTest::mouseClick(InPane<QToolButton>("Précédent"), Qt::LeftButton);
  ASSERT_TRUE(WaitFor(
      [&] { return Line("AdresseWeb").endsWith(QStringLiteral("tableau.htm")) && !Web().Busy(); }, Patience));
  EXPECT_TRUE(InPane("FrameWeb")->isVisible());
}

TEST_F(BrowserTest, TheDetailsOfTheCompanyComeFromItsOwnPage) {
  Browse(QStringLiteral("apec.fr/offres/12.htm"));
  ASSERT_TRUE(Settled());
  ClickLink("CaptureSel");
  ASSERT_EQ(Count(), 1);
  EXPECT_TRUE(site.asked.contains(QStringLiteral("apec.fr/MesOffres/coord.htm")));
  EXPECT_EQ(Read(1).CP, u"69002");
  EXPECT_TRUE(Contains(Read(1).Description, u"12 rue Haute"));
  EXPECT_TRUE(WaitFor([&] { return Line("AdresseWeb").endsWith(QStringLiteral("12.htm")) && !Web().Busy(); },
                      Patience))
      << "back on the advertisement";
}

TEST_F(BrowserTest, ASecondPageThatNeverAnswersIsStoppedOrLeftWithTheForm) {
  const QByteArray ad = "<h1>Caissier de nuit</h1><p>Société : Acme</p><p>Contrat : CDI</p><p>" +
                        QByteArray(100, 'x') +
                        "</p><a href=\"/Mes/../../muet\" class=\"ForwardToCoordEntreprise\">x</a>";
  site.pages[QStringLiteral("apec.fr/13.htm")] = ad;
  Browse(QStringLiteral("apec.fr/13.htm"));
  ASSERT_TRUE(Settled());
  QTimer::singleShot(500, &Window(), [&] {
    ASSERT_TRUE(InPane("Arreter")->isVisible());
    QTest::mouseClick(InPane("Arreter"), Qt::LeftButton);
  });
  ClickLink("CaptureSel");
  EXPECT_EQ(Count(), 1);
  EXPECT_FALSE(InPane("Arreter")->isVisible());
  EXPECT_EQ(Line("Intitule"), QStringLiteral("Caissier De Nuit"));

  // The form is closed in the wait, and opened again before that has ended.
  QTimer::singleShot(500, &desktop->Main(), [&] {
    desktop->Windows().Unload(u"FormCand");
    desktop->Windows().Show(u"FormCand");
  });
  ClickLink("CaptureSel");
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(Line("Intitule"), QString()) << "the new form is empty";
  EXPECT_TRUE(failures.empty());
}

// Fills the form on show from the identity and the letter.
void FillFrom(Desktop& desktop, BrowserPane& pane) {
  static_cast<Identity&>(desktop.Model()) = {.Nom = u"Durand",
                                             .Prenom = u"Zoé \"l'\\ancienne\"",
                                             .CP = u"69002",
                                             .Ville = u"Lyon",
                                             .Tel = u"04 72 00 00 14",
                                             .Email = u"zoe@a.example"};
  auto* link = pane.findChild<QPushButton*>(QStringLiteral("LienPreremplir"));
  link->click();
}

TEST_F(BrowserTest, APlainFormIsFilledAndItsSecretsStay) {
  Browse(QStringLiteral("formulaire.htm"));
  ASSERT_TRUE(Settled());
  FillFrom(*desktop, Pane());
  EXPECT_EQ(Value(QStringLiteral("[name=nom]")), QStringLiteral("Durand"));
  EXPECT_EQ(Value(QStringLiteral("[name=prenom]")), ToQt(desktop->Model().Prenom));
  EXPECT_EQ(Value(QStringLiteral("#email")), QStringLiteral("zoe@a.example"));
  EXPECT_EQ(Value(QStringLiteral("[name=cp]")), QStringLiteral("69002"));
  EXPECT_EQ(Value(QStringLiteral("[name=ville]")), QStringLiteral("69")) << "the row whose text is the town";
  EXPECT_EQ(Value(QStringLiteral("[name=localite]")), QStringLiteral("Paris")) << "no row is the town";
  EXPECT_EQ(Value(QStringLiteral("[name=identifiant2]")), QStringLiteral("secret"));
  EXPECT_EQ(Value(QStringLiteral("[name=motdepasse]")), QStringLiteral("secret"));
  EXPECT_EQ(Value(QStringLiteral("[name=nom_cache]")), QStringLiteral("jeton"));
  const QString heard = Inside(QStringLiteral("document.getElementById('journal').textContent"));
  EXPECT_TRUE(heard.contains(QStringLiteral("input:nom change:nom "))) << heard.toStdString();
  EXPECT_TRUE(heard.contains(QStringLiteral("change:ville"))) << heard.toStdString();
  EXPECT_FALSE(heard.contains(QStringLiteral("localite"))) << heard.toStdString();
}

TEST_F(BrowserTest, AFormThatAFrameworkRulesTakesTheValues) {
  if (!QFileInfo::exists(site.reactFolder + QStringLiteral("/react.production.min.js")))
    GTEST_SKIP() << "React n'est pas là : le registre npm n'a pas pu être atteint";
  Browse(QStringLiteral("react.htm"));
  ASSERT_TRUE(Settled());
  FillFrom(*desktop, Pane());
  const auto state = [&] { return Inside(QStringLiteral("document.getElementById('etat').textContent")); };
  EXPECT_TRUE(WaitFor(
      [&] {
        return state() == QStringLiteral(R"({"nom":"Durand","message":"","ville":"69","secret":"secret"})");
      },
      Patience))
      << state().toStdString();
  EXPECT_EQ(Value(QStringLiteral("[name=nom]")), QStringLiteral("Durand"));
}

TEST_F(BrowserTest, TheFormsInTheFramesOfASiteAreFilledBehindItsOwn) {
  Browse(QStringLiteral("cadres.htm"));
  ASSERT_TRUE(Settled());
  FillFrom(*desktop, Pane());
  EXPECT_EQ(Value(QStringLiteral("[name=nom]")), QStringLiteral("Durand"));
  EXPECT_EQ(Inside(QStringLiteral("frames[0].document.querySelector('[name=nom]').value")),
            QStringLiteral("Durand"));
  EXPECT_EQ(Inside(QStringLiteral("frames[0].document.querySelector('[type=password]').value")),
            QStringLiteral("secret"));
  EXPECT_FALSE(Contains(Pages().BodyText(DocumentBrowser::Whole), u"input:")) << "the page's own text alone";
}

TEST_F(BrowserTest, AHostilePageReachesNothingAndLeavesTheProgramUsable) {
  Type("Intitule", QStringLiteral("En cours"));
  Browse(QStringLiteral("hostile.htm"));
  ASSERT_TRUE(Settled());
  EXPECT_EQ(Pages().LocationURL(), FromQt(site.Address(QStringLiteral("hostile.htm"))));
  EXPECT_FALSE(site.asked.contains(QStringLiteral("tableau.htm"))) << "no window without a click";
  EXPECT_EQ(Found(QStringLiteral("dans un cadre")), 1) << "what frames show is found";
  EXPECT_EQ(Found(QStringLiteral("root:")), 0);
  const auto notice = [&] { return Inside(QStringLiteral("document.getElementById('avis').textContent")); };
  EXPECT_TRUE(WaitFor([&] { return notice().count(QLatin1Char(' ')) == 6; }, Patience));
  EXPECT_TRUE(notice().contains(QStringLiteral("avis denied"))) << notice().toStdString();
  EXPECT_TRUE(notice().contains(QStringLiteral("position 1"))) << notice().toStdString();
  EXPECT_FALSE(notice().contains(QStringLiteral("micro donné"))) << notice().toStdString();
  Inside(QStringLiteral("document.getElementById('fichier').click()"));
  FillFrom(*desktop, Pane());
  EXPECT_EQ(Value(QStringLiteral("[name=nom]")), QString()) << "beyond the thousandth element";
  EXPECT_FALSE(Web().BringLinkVisible) << "the title of the page is no window outside";
  EXPECT_EQ(Pages().View()->url().scheme(), QStringLiteral("http"));
  Browse(QStringLiteral("file:///etc/passwd"));
  EXPECT_TRUE(InPane("AvisPage")->isVisible());
  Browse(QStringLiteral("tableau.htm"));
  ASSERT_TRUE(Settled()) << "the page is left without a question";
  EXPECT_EQ(Pages().LocationURL(), FromQt(site.Address(QStringLiteral("tableau.htm"))));
  EXPECT_EQ(Line("Intitule"), QStringLiteral("En cours"));
  EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(BrowserTest, BoxesWithoutEndAreCutShort) {
  Browse(QStringLiteral("messages.htm"));
  auto* notice = InPane<QLabel>("AvisPage");
  ASSERT_TRUE(WaitFor([&] { return notice->isVisible(); }, Patience));
  EXPECT_TRUE(notice->text().contains(QStringLiteral("messages sans fin")));
  EXPECT_EQ(dialogs.told.size(), 3u);
  EXPECT_TRUE(Contains(dialogs.told.at(0), u"Vous avez gagné"));
  Browse(QStringLiteral("tableau.htm"));
  ASSERT_TRUE(Settled());
  EXPECT_FALSE(notice->isVisible());
  EXPECT_EQ(Pages().BodyText(12), u"EMPLOI-LOIRE");
}

TEST_F(BrowserTest, ACrashOfThePageIsToldAndThePageComesBack) {
  Browse(QStringLiteral("tableau.htm"));
  ASSERT_TRUE(Settled());
  Type("Intitule", QStringLiteral("En cours"));
  const qint64 process = Pages().View()->page()->renderProcessPid();
  ASSERT_GT(process, 0);
  ::kill(static_cast<pid_t>(process), SIGKILL);
  ASSERT_TRUE(WaitFor([&] { return InPane("AvisPage")->isVisible(); }, Patience));
  EXPECT_EQ(Line("Intitule"), QStringLiteral("En cours"));
  EXPECT_EQ(Pages().BodyText(5), u"") << "a page that is gone does not hold the program up";
  QTest::mouseClick(InPane<QPushButton>("Recharger"), Qt::LeftButton);
  ASSERT_TRUE(Settled());
  EXPECT_FALSE(InPane("AvisPage")->isVisible());
  EXPECT_EQ(Pages().BodyText(5), u"EMPLO");
}

TEST_F(BrowserTest, APageWhoseScriptNeverRestsIsLeftForAnotherOfItsSite) {
  site.pages[QStringLiteral("boucle.htm")] =
      "<p>Boucle</p><script>onload = () => setTimeout(() => { for (;;); "
      "}, 200)</script>";
  Browse(QStringLiteral("boucle.htm"));
  ASSERT_TRUE(Settled());
  Wait(300);
  ClickLink("CaptureSel");
  ASSERT_EQ(dialogs.told.size(), 1u) << "the capture gives up";
  Browse(QStringLiteral("tableau.htm"));
  ASSERT_TRUE(Settled());
  EXPECT_EQ(Pages().BodyText(12), u"EMPLOI-LOIRE");
  EXPECT_FALSE(InPane("AvisPage")->isVisible());
}

TEST_F(BrowserTest, ACertificateThatNobodyVouchesForIsRefused) {
  const QString key = QString::fromStdString((scratch.Path() / "cle.pem").string());
  const QString paper = QString::fromStdString((scratch.Path() / "certificat.pem").string());
  const QStringList order{QStringLiteral("req"),
                          QStringLiteral("-x509"),
                          QStringLiteral("-newkey"),
                          QStringLiteral("rsa:2048"),
                          QStringLiteral("-nodes"),
                          QStringLiteral("-subj"),
                          QStringLiteral("/CN=localhost"),
                          QStringLiteral("-keyout"),
                          key,
                          QStringLiteral("-out"),
                          paper};
  if (QProcess::execute(QStringLiteral("openssl"), order) != 0) GTEST_SKIP() << "openssl n'est pas là";
  QFile keyFile(key);
  QFile paperFile(paper);
  ASSERT_TRUE(keyFile.open(QIODevice::ReadOnly) && paperFile.open(QIODevice::ReadOnly));
  QSslConfiguration secrets;
  secrets.setPrivateKey(QSslKey(&keyFile, QSsl::Rsa));
  secrets.setLocalCertificate(QSslCertificate(&paperFile));
  QSslServer server;
  server.setSslConfiguration(secrets);
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  Browse(QStringLiteral("https://127.0.0.1:%1/").arg(server.serverPort()));
  ASSERT_TRUE(Settled());
  auto* notice = InPane<QLabel>("AvisPage");
  EXPECT_TRUE(notice->isVisible());
  EXPECT_TRUE(notice->text().startsWith(QStringLiteral("Le certificat de"))) << notice->text().toStdString();
}

TEST_F(BrowserTest, ASiteThatDoesNotAnswerIsToldInFrenchAndIsAPlaceLikeAnyOther) {
  QTcpServer taken;
  ASSERT_TRUE(taken.listen(QHostAddress::LocalHost));
  const quint16 port = taken.serverPort();
  taken.close();
  const QString silent = QStringLiteral("http://127.0.0.1:%1/").arg(port);
  const auto fail = [&] {
    Browse(silent);
    ASSERT_TRUE(Settled());
    EXPECT_TRUE(InPane<QLabel>("AvisPage")->text().contains(QStringLiteral("ne répond pas")));
    EXPECT_TRUE(InPane("AvisPage")->isVisible());
    EXPECT_EQ(Line("AdresseWeb"), silent) << "the address can be mended";
  };
  // An address that is refused before any page has been loaded leaves nothing to load again.
  Browse(QStringLiteral("file:///etc/passwd"));
  QTest::mouseClick(InPane<QPushButton>("Recharger"), Qt::LeftButton);
  EXPECT_EQ(Pages().ReadyState(), DocumentBrowser::Complete) << "loading without end";
  fail();
  ClickLink("CaptureSel");
  ASSERT_EQ(dialogs.told.size(), 1u);
  EXPECT_TRUE(dialogs.told[0].starts_with(u"Talvor a des difficultés"));

  // The way back leads to the page before, not past it.
  for (const char* page : {"tableau.htm", "liste.htm"}) {
    Browse(QString::fromLatin1(page));
    ASSERT_TRUE(Settled());
  }
  fail();
  QTest::mouseClick(InPane<QToolButton>("Précédent"), Qt::LeftButton);
  ASSERT_TRUE(Settled());
  EXPECT_FALSE(InPane("AvisPage")->isVisible());
  EXPECT_EQ(Line("AdresseWeb"), site.Address(QStringLiteral("liste.htm")));

  fail();
  SiteServer again{QStringLiteral(TALVOR_TEST_DATA "/sites")};
  again.pages[QString()] = "<p>De retour</p>";
  again.close();
  ASSERT_TRUE(again.listen(QHostAddress::LocalHost, port));
  QTest::mouseClick(InPane<QPushButton>("Recharger"), Qt::LeftButton);
  ASSERT_TRUE(Settled());
  EXPECT_EQ(Pages().BodyText(9), u"De retour");
}

TEST_F(BrowserTest, ALinkToANewWindowOpensInThePane) {
  Browse(QStringLiteral("tableau.htm"));
  ASSERT_TRUE(Settled());
  const QString place =
      Inside(QStringLiteral("(() => { const r = document.getElementById('postuler').getBoundingClientRect();"
                            "return (r.x + r.width / 2) + ',' + (r.y + r.height / 2); })()"));
  const QPoint at(static_cast<int>(place.section(QLatin1Char(','), 0, 0).toDouble()),
                  static_cast<int>(place.section(QLatin1Char(','), 1).toDouble()));
  QTest::mouseClick(Pages().View()->focusProxy(), Qt::LeftButton, {}, at);
  EXPECT_TRUE(
      WaitFor([&] { return Line("AdresseWeb").endsWith(QStringLiteral("formulaire.htm")); }, Patience));
}

qint64 ThreadMilliseconds() {
  timespec used{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
  return used.tv_sec * 1000 + used.tv_nsec / 1'000'000;
}

TEST_F(BrowserTest, RatingAHugePageDoesNotHoldTheInterfaceUp) {
  QByteArray text;
  while (text.size() < 10'000'000) text += "<p>offre de contrat, lieu et salaire du poste à pourvoir</p>\n";
  site.pages[QStringLiteral("enorme.htm")] = text;
  Browse(QStringLiteral("enorme.htm"));
  ASSERT_TRUE(WaitFor([&] { return Pages().ReadyState() == DocumentBrowser::Complete; }, 60'000));
  // The work of this thread between two events, whatever else the machine is busy with.
  qint64 longest = 0;
  qint64 last = ThreadMilliseconds();
  QTimer beat;
  QObject::connect(&beat, &QTimer::timeout, [&] {
    const qint64 now = ThreadMilliseconds();
    longest = std::max(longest, now - std::exchange(last, now));
  });
  beat.start(0);
  ASSERT_TRUE(Settled());
  beat.stop();
  EXPECT_LT(longest, 50);
  EXPECT_EQ(Line("AdresseWeb"), site.Address(QStringLiteral("enorme.htm")));
}

TEST_F(BrowserTest, TheListOfSitesServesTheKeyboardAndTheMouse) {
  std::ofstream("Listesites.txt", std::ios::binary)
      << "ACME   " << site.Address(QStringLiteral("liste.htm")).toStdString()
      << "\r\nAUTRE   http://b.example/\r\n";
  desktop->Windows().Unload(u"FormCand");
  desktop->Windows().Show(u"FormCand");
  Click("Action4");
  auto* rows = InPane<QListWidget>("List1");
  QTest::mouseClick(InPane<QToolButton>("Image6"), Qt::LeftButton);
  ASSERT_TRUE(rows->isVisible());
  QTest::keyClick(rows, Qt::Key_Escape);
  EXPECT_FALSE(rows->isVisible());
  EXPECT_FALSE(Web().SiteListVisible);
  QTest::keyClick(&desktop->Main(), Qt::Key_F4);
  ASSERT_TRUE(rows->isVisible());
  EXPECT_LE(rows->mapToGlobal(QPoint(rows->width(), 0)).x(),
            Pane().mapToGlobal(QPoint(Pane().width(), 0)).x());
  QTest::keyClick(rows, Qt::Key_Return);
  EXPECT_FALSE(rows->isVisible());
  QCoreApplication::processEvents();
  ASSERT_TRUE(Settled());
  EXPECT_EQ(Line("AdresseWeb"), site.Address(QStringLiteral("liste.htm")));
}

TEST_F(BrowserTest, TheDirectoryIsRebuiltFromTheDeliveredPage) {
  std::filesystem::copy_file(TALVOR_DATA_FOLDER "/listesites.htm", "listesites.htm");
  desktop->Model().AdresseWeb = StartPage;
  EXPECT_FALSE(Web().MajListeSites().Failed());
  SiteDirectory rebuilt;
  rebuilt.Charger();
  EXPECT_GE(rebuilt.Rows.size(), 195u + 20u);
  EXPECT_EQ(SiteDirectory::NameOf(rebuilt.Rows.front()), u"FRANCE\u00A0TRAVAIL");
  EXPECT_EQ(SiteDirectory::AddressOf(rebuilt.Rows.front()), u"https://www.francetravail.fr/");
  for (const Text& row : rebuilt.Rows)
    EXPECT_TRUE(SiteDirectory::AddressOf(row).starts_with(u"https://")) << ToUtf8(row);
}

TEST_F(BrowserTest, TheAddressOfTheAdvertisementOpensIt) {
  Click("Action0");
  Type("Intitule", QStringLiteral("Maçon"));
  Find<QLineEdit>("www")->setText(site.Address(QStringLiteral("tableau.htm")));
  desktop->Candidatures().Form().WebPaneVisible = false;
  Window().Refresh();
  Click("www");
  QCoreApplication::processEvents();
  EXPECT_TRUE(Pane().isVisible());
  ASSERT_TRUE(Settled());
  EXPECT_EQ(Pages().BodyText(12), u"EMPLOI-LOIRE");
}

TEST_F(BrowserTest, WhatTheBrowserKeepsLiesOutsideTheDataFolder) {
  const auto data = QString::fromStdString((scratch.Path() / "Talvor").string()) + QLatin1Char('/');
  EXPECT_FALSE(Pages().Profile().isOffTheRecord());
  EXPECT_FALSE(Pages().Profile().persistentStoragePath().startsWith(data));
  EXPECT_FALSE(Pages().Profile().cachePath().startsWith(data));
}

}  // namespace
}  // namespace talvor
