#include <signal.h>

#include <QElapsedTimer>
#include <QFileInfo>
#include <QListWidget>
#include <QProgressBar>
#include <QToolButton>

#include "tests/desktop/desktop_fixture.h"
#include "tests/desktop/site_server.h"
#include "tracking/form_cand_messages.h"

namespace talvor {
namespace {

constexpr int Patience = 20000;  // milliseconds

// The pane on the sites of the tests, with the real engine.
class BrowserTest : public DesktopTest {
 protected:
  BrowserTest() {
    site.reactFolder = QStringLiteral(TALVOR_REACT_FOLDER);
    desktop->Model().AdresseWeb = BlankPage;
    Click("Action4");
    desktop->Candidatures().AdresseWeb.clear();
  }

  BrowserPane& Pane() { return Window().Web(); }
  FormCandWeb& Web() { return desktop->Web(); }
  WebBrowser& Pages() { return desktop->Pages(); }
  template <class Widget = QWidget>
  Widget* InPane(const char* name) {
    return Pane().findChild<Widget*>(QString::fromUtf8(name));
  }

  void Browse(const QString& path) {
    auto* address = InPane<QLineEdit>("AdresseWeb");
    address->setText(path.contains(QLatin1Char(':')) ? path : site.Address(path));
    QTest::keyClick(address, Qt::Key_Return);
  }
  // The page has been loaded, rated, and the strip stands still.
  bool Settled() {
    return QTest::qWaitFor([&] { return Pages().ReadyState() == DocumentBrowser::Complete; }, Patience) &&
           QTest::qWaitFor([&] { return !Web().Busy(); }, Patience);
  }
  // What a script of the page itself answers.
  QString Inside(const QString& script) {
    QString answer;
    bool come = false;
    Pages().View()->page()->runJavaScript(script, [&](const QVariant& value) {
      answer = value.toString();
      come = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return come; }, Patience));
    return answer;
  }
  QString Value(const QString& selector) {
    return Inside(QStringLiteral("document.querySelector('%1').value").arg(selector));
  }
  void ClickLink(const char* name) { QTest::mouseClick(InPane<QPushButton>(name), Qt::LeftButton); }

  SiteServer site{QStringLiteral(TALVOR_TEST_DATA "/sites")};
};

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
  EXPECT_EQ(row.Reference, u"CN-4321");
  EXPECT_EQ(row.www, FromQt(site.Address(QStringLiteral("tableau.htm"))));
  EXPECT_TRUE(Contains(row.Description, u"\r\n"));
  EXPECT_EQ(Line("Intitule"), QStringLiteral("Caissier De Nuit"));
  EXPECT_EQ(Rows().size(), 2);
}

TEST_F(BrowserTest, ASelectionIsCapturedWhereverTheFocusHasGone) {
  Browse(QStringLiteral("tableau.htm"));
  ASSERT_TRUE(Settled());
  Inside(QStringLiteral("getSelection().selectAllChildren(document.getElementById('profil'))"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Pages().View()->hasSelection(); }, Patience));
  ClickLink("CaptureSel");
  EXPECT_EQ(dialogs.told, std::vector<Text>{Text{messages::NotIdentified}}) << "the selection holds no title";
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(Pages().BodyText(12), u"EMPLOI-LOIRE");
}

TEST_F(BrowserTest, APageThatFillsItselfIsCapturedAsItStands) {
  Browse(QStringLiteral("moderne.htm"));
  ASSERT_TRUE(Settled());
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return Pages().View()->title() == QStringLiteral("Offre affichée"); }, Patience));
  ClickLink("CaptureSel");
  ASSERT_EQ(Count(), 1);
  EXPECT_TRUE(Contains(Read(1).Intitule, u"Infirmier"));
  EXPECT_EQ(Read(1).Reference, u"IB-77");
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
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return Line("AdresseWeb").endsWith(QStringLiteral("tableau.htm")) && !Web().Busy(); }, Patience));
  EXPECT_TRUE(InPane("FrameWeb")->isVisible());
}

}  // namespace
}  // namespace talvor
