// The pane of the browser over the sites of the tests, which stand on the loopback address.
#pragma once

#include <QWebEngineFindTextResult>
#include <QWebEngineView>

#include "tests/desktop/desktop_fixture.h"
#include "tests/desktop/site_server.h"

namespace talvor {

class BrowserTest : public DesktopTest {
 protected:
  static constexpr int Patience = 20000;  // milliseconds

  BrowserTest() {
    site.reactFolder = QStringLiteral(TALVOR_REACT_FOLDER);
    OpenPane();
  }
  void OpenPane() {
    desktop->Model().AdresseWeb = BlankPage;
    Click("Action4");
    desktop->Candidatures().Form().AdresseWeb.clear();
  }

  BrowserPane& Pane() { return Window().Web(); }
  FormCandWeb& Web() { return desktop->Candidatures().Web(); }
  WebBrowser& Pages() { return desktop->Candidatures().Pages(); }
  template <class Widget = QWidget>
  Widget* InPane(const char* name) {
    return Pane().findChild<Widget*>(QString::fromUtf8(name));
  }

  void Browse(const QString& path) {
    auto* address = InPane<QLineEdit>("AdresseWeb");
    address->setText(path.contains(QLatin1Char(':')) ? path : site.Address(path));
    QTest::keyClick(address, Qt::Key_Return);
    QCoreApplication::processEvents();  // the key is over before the page is asked for
  }
  // The page has been loaded and rated, and the strip stands still.
  bool Settled() {
    if (!WaitFor([&] { return Pages().ReadyState() == DocumentBrowser::Complete; }, Patience)) return false;
    Wait(50);  // the end of the load is told by an event of its own
    return WaitFor([&] { return !Web().Busy(); }, Patience);
  }
  // What a script of the page itself answers.
  QString Inside(const QString& script) {
    QString answer;
    bool come = false;
    Pages().View()->page()->runJavaScript(script, [&](const QVariant& value) {
      answer = value.toString();
      come = true;
    });
    EXPECT_TRUE(WaitFor([&] { return come; }, Patience));
    return answer;
  }
  // How often a text stands on the page, its frames of whatever origin among it.
  int Found(const QString& text) {
    int matches = -1;
    Pages().View()->page()->findText(
        text, {}, [&](const QWebEngineFindTextResult& result) { matches = result.numberOfMatches(); });
    EXPECT_TRUE(WaitFor([&] { return matches >= 0; }, Patience));
    return matches;
  }
  QString Value(const QString& selector) {
    return Inside(QStringLiteral("document.querySelector('%1').value").arg(selector));
  }
  void ClickLink(const char* name) { QTest::mouseClick(InPane<QPushButton>(name), Qt::LeftButton); }

  SiteServer site{QStringLiteral(TALVOR_TEST_DATA "/sites")};
};

}  // namespace talvor
