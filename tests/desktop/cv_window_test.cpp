// The editor of CVs through its real window, with the real browser.

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFontDatabase>
#include <QMenu>
#include <QProcess>
#include <QTcpServer>
#include <QToolButton>
#include <QWebEngineFindTextResult>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/line_file.h"
#include "desktop/desks/cv_desk.h"
#include "tests/desktop/desktop_fixture.h"

namespace talvor {
namespace {

constexpr int Patience = 20000;  // milliseconds

constexpr const char* Template =
    "<html><body style='font-family:Arial;color:#FF6600'><h1>#Prenom# #Nom#</h1><p>#Adresse1#</p><p>#CP# "
    "#Ville#</p><p>#Email#</p>#Photographie#P01<h2>Etudes</h2>#Etudes#P02#Formations#P03<h2>Parcours</h2>"
    "#Experiences#P04#Competences#P05#Langues#P06#Divers#P07</body></html>\r\n";

// A printer rounds its colours.
bool IsRed(QRgb pixel) { return qRed(pixel) > 240 && qGreen(pixel) < 16 && qBlue(pixel) < 16; }

class CvWindowTest : public DesktopTest {
 protected:
  CvWindowTest() {
    Write("Modeles/Basic.htm", Template);
    Write("Modeles/Autre.htm", Template);
    // With a CV in the first slot the editor opens without its hint.
    Write("CV/Ancien.dat", "Nom=Ancien\r\n");
    desktop->Model().InitMenu();
    // Both forms have fields of the same names.
    desktop->Windows().Unload(u"FormCand");
    desktop->Cv().OpenNew();
  }

  std::filesystem::path Folder() const { return scratch.Path() / "Talvor"; }
  void Write(const char* name, std::string_view bytes) {
    std::ofstream(Folder() / name, std::ios::binary) << bytes;
  }
  std::string Bytes(const char* name) { return ReadBytes(Folder() / name).value_or(std::string()); }
  CvPageView& Page() { return desktop->Cv().Window()->Page(); }
  FormRedigerCV& Form() { return desktop->Cv().Form(); }

  // The text that the reader of the page sees.
  QString Seen() {
    QString seen;
    bool answered = false;
    Page().page()->toPlainText([&](const QString& text) {
      seen = text;
      answered = true;
    });
    EXPECT_TRUE(WaitFor([&] { return answered; }, Patience));
    return seen;
  }
  bool SeesAtLast(const QString& text) {
    return WaitFor([&] { return Seen().contains(text); }, Patience);
  }
  // Looks into frames as well.
  int Matches(const QString& text) {
    int matches = -1;
    Page().page()->findText(
        text, {}, [&](const QWebEngineFindTextResult& result) { matches = result.numberOfMatches(); });
    EXPECT_TRUE(WaitFor([&] { return matches >= 0; }, Patience));
    return matches;
  }
};

TEST_F(CvWindowTest, AnIdentityBlockThatIsLeftBecomesFieldsAPageAndAFile) {
  auto* box = Find<QPlainTextEdit>("Identite");
  ASSERT_TRUE(box->isVisible());
  ASSERT_TRUE(box->hasFocus());
  QGuiApplication::clipboard()->setText(
      QStringLiteral("Julie Marchand\n12 rue des Lilas\n69003 Lyon\njulie@exemple.example\n"));
  box->paste();
  TypeKeys(box, QStringLiteral("35 ans"));
  EXPECT_TRUE(Line("Nom").isEmpty()) << "typing alone parses nothing";
  Find("Etudes")->setFocus();
  EXPECT_FALSE(box->isVisible());
  EXPECT_EQ(Line("Ville"), QStringLiteral("Lyon"));
  EXPECT_EQ(Line("Prénom"), QStringLiteral("Julie"));
  EXPECT_EQ(Line("Age"), QStringLiteral("35"));
  EXPECT_TRUE(SeesAtLast(QStringLiteral("julie@exemple.example")));
  EXPECT_NE(Bytes("CV/Marchand Julie.dat").find("Ville=Lyon\r\n"), std::string::npos);
  EXPECT_TRUE(desktop->Main().Header().Slot(1).accessibleName().contains(QStringLiteral("Marchand Julie")));
  EXPECT_TRUE(failures.empty());
}

TEST_F(CvWindowTest, ARenderKeepsTheFocusTheCaretAndThePlaceOnThePage) {
  Click("SaiseDetaillee");
  QString lines;
  for (int year = 1900; year < 2020; ++year) lines += QStringLiteral("%1 : poste\n").arg(year);
  Type("Nom", QStringLiteral("Marchand"));
  auto* record = Find<QPlainTextEdit>("Experiences");
  record->setFocus();
  record->setPlainText(lines);
  Find("Divers")->setFocus();
  ASSERT_TRUE(SeesAtLast(QStringLiteral("2019 : poste")));

  auto* page = Page().page();
  ASSERT_TRUE(WaitFor([&] { return page->contentsSize().height() > 1500; }, Patience));
  constexpr int Application = 1;  // a world of our own
  page->runJavaScript(QStringLiteral("window.scrollTo(0, 700)"), Application);
  ASSERT_TRUE(WaitFor([&] { return page->scrollPosition().y() > 300; }, Patience));
  const double place = page->scrollPosition().y();

  TypeKeys(Find("Divers"), QStringLiteral("Chorale"));
  Find("Etudes")->setFocus();
  TypeKeys(QApplication::focusWidget(), QStringLiteral("Licence"));
  ASSERT_TRUE(SeesAtLast(QStringLiteral("Chorale")));
  EXPECT_TRUE(Find("Etudes")->hasFocus());
  EXPECT_EQ(Find<QPlainTextEdit>("Etudes")->textCursor().position(), 7);
  EXPECT_TRUE(WaitFor([&] { return std::abs(page->scrollPosition().y() - place) < 2; }, Patience))
      << page->scrollPosition().y() << " instead of " << place;
  EXPECT_TRUE(Find("Etudes")->hasFocus());
}

TEST_F(CvWindowTest, AHostileCvRunsNothingFetchesNothingAndReadsNoOtherFile) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
  int visits = 0;
  QObject::connect(&server, &QTcpServer::newConnection, [&] { ++visits; });
  const std::string remote = "http://127.0.0.1:" + std::to_string(server.serverPort());
  Write("Modeles/voisin.html", "<p>fichier voisin</p>");
  Write("secret.html", "<p>fichier secret</p>");
  std::filesystem::create_symlink(Folder() / "secret.html", Folder() / "Modeles" / "lien.html");
  const std::string secret = "file://" + (Folder() / "secret.html").string();
  Write("CV/Hostile.dat",
        "Nom=Marchand\r\nNomModele=Basic\r\nMod\xE8le=Basic.htm\r\nEtudes="
        "<script>document.body.append('script' + ' lance')</script>"
        "<img src=x onerror=\"document.body.append('script' + ' lance')\">"
        "<img src=" +
            remote + "/image><link rel=preconnect href=" + remote + "><LINK\trel=preconnect href=" + remote +
            "><link rel=prefetch href=" + remote + "/p><style>@import url(" + remote +
            "/style);</style><iframe src=" + remote + "></iframe><object data=" + remote +
            "/objet></object><meta http-equiv=refresh content='0;url=" + remote +
            "/ailleurs'><iframe src=file:///etc/passwd></iframe><iframe src=" + secret +
            "></iframe><iframe src=../secret.html></iframe><iframe src=lien.html></iframe><iframe "
            "src=voisin.html></iframe>\r\nDivers=Chorale\r\n");
  desktop->Cv().OpenFile(u"Hostile.dat");
  ASSERT_TRUE(SeesAtLast(QStringLiteral("Chorale")));
  // The last frame has come, so those before it have had their turn.
  ASSERT_TRUE(WaitFor([&] { return Matches(QStringLiteral("fichier voisin")) == 1; }, Patience));
  EXPECT_EQ(Matches(QStringLiteral("root:")), 0);
  EXPECT_EQ(Matches(QStringLiteral("fichier secret")), 0);
  EXPECT_EQ(Matches(QStringLiteral("script lance")), 0);
  EXPECT_EQ(Page().url().fileName(), QStringLiteral("CVtemp.html"));
  EXPECT_EQ(visits, 0);
}

TEST_F(CvWindowTest, AFontThatIsNotHereIsSaidToBeReplaced) {
  const QString twin = QStringLiteral("Liberation Sans");
  ASSERT_TRUE(QFontDatabase::hasFamily(twin));
  for (const char* name : {"PoliceT0", "PoliceT1", "PoliceT2", "PoliceT3", "PoliceT4", "PoliceT5"}) {
    auto* font = Find<QPushButton>(name);
    const QString family = font->accessibleName();
    const bool here = QFontDatabase::hasFamily(family);
    EXPECT_EQ(here, font->text() == family) << font->text().toStdString();
    EXPECT_EQ(here, font->toolTip().isEmpty());
    if (!here && family == QStringLiteral("Arial")) {
      EXPECT_TRUE(font->text().contains(twin));
    }
  }
  EXPECT_TRUE(Find<QPushButton>("PoliceT5")->text().contains(QStringLiteral("absente")));
}

TEST_F(CvWindowTest, APhotoFromTheClipboardIsShownAndRemoved) {
  desktop->Cv().OpenNew();
  auto* photo = Find<QToolButton>("Photo");
  EXPECT_TRUE(photo->accessibleName().contains(QStringLiteral("aucune")));
  QImage red(20, 30, QImage::Format_RGB32);
  red.fill(Qt::red);
  QGuiApplication::clipboard()->setImage(red);
  Click("Photo");
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  menu->findChild<QAction*>(QStringLiteral("CollerPhoto"))->trigger();
  menu->close();
  EXPECT_EQ(photo->icon().pixmap(20, 30).toImage().pixelColor(5, 5), QColor(Qt::red));
  EXPECT_EQ(Bytes("Visualisation/Basic.jpg").substr(1, 3), "PNG");
  menu->findChild<QAction*>(QStringLiteral("SupprimerPhoto"))->trigger();
  EXPECT_TRUE(photo->accessibleName().contains(QStringLiteral("aucune")));
}

TEST_F(CvWindowTest, ThePanelsTheGridAndTheMenusReachTheForm) {
  Click("SaiseDetaillee");
  Type("Nom", QStringLiteral("Marchand"));
  Type("Prénom", QStringLiteral("julie"));
  Click("Entree1");
  auto* colours = Find("CadreCouleur");
  EXPECT_TRUE(colours->isVisible());
  EXPECT_TRUE(Find("Nom")->hasFocus());
  EXPECT_EQ(Line("Prénom"), QStringLiteral("Julie")) << "left by the click";
  Find("Coul3")->setFocus();
  EXPECT_TRUE(colours->isVisible()) << "the keyboard reaches the swatches";
  Click("Coul3");
  EXPECT_EQ(Form().Couleur, u"#9F1239");
  Find("Divers")->setFocus();
  EXPECT_FALSE(colours->isVisible());

  Click("LangueCourant0");
  QTest::keyClick(Find("LangueCourant0"), Qt::Key_Right);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_TRUE(Find<QCheckBox>("LangueBilingue0")->isChecked());
  EXPECT_FALSE(Find<QCheckBox>("LangueCourant0")->isChecked());

  Find("NomModele")->setFocus();
  EXPECT_TRUE(Find("CadreModeles")->isVisible());
  QTest::keyClick(Find("NomModele"), Qt::Key_Up);
  QTest::keyClick(Find("NomModele"), Qt::Key_Return);
  EXPECT_EQ(Line("NomModele"), QStringLiteral("Autre"));
  EXPECT_FALSE(Find("CadreModeles")->isVisible());

  Click("CheckDisposition0");
  EXPECT_TRUE(Find<QCheckBox>("CheckDisposition0")->isChecked());
  Click("CheckDisposition0");
  EXPECT_TRUE(Find<QCheckBox>("CheckDisposition1")->isChecked());

  Click("Entree2");
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  menu->findChild<QAction*>(QStringLiteral("MenuAnglais"))->trigger();
  menu->close();
  EXPECT_EQ(Form().LangueCV, u"1");
  EXPECT_TRUE(failures.empty());
}

TEST_F(CvWindowTest, ThePageIsPrintedAndPreviewedWithItsPhotoOnA4) {
  QImage red(20, 30, QImage::Format_RGB32);
  red.fill(Qt::red);
  ASSERT_TRUE(red.save(QString::fromStdString((Folder() / "Modeles/Julie.jpg").string()), "PNG"));
  Write("CV/Julie.dat", "Nom=Marchand\r\nNomModele=Basic\r\nMod\xE8le=Basic.htm\r\nEtudes=Licence\r\n");
  desktop->Cv().OpenFile(u"Julie.dat");
  ASSERT_TRUE(SeesAtLast(QStringLiteral("Licence")));

  desktop->Cv().makePrinter = [] { return nullptr; };
  Click("Entree3");
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  auto* print = menu->findChild<QAction*>(QStringLiteral("ImprimerCV"));
  menu->close();
  print->trigger();
  ASSERT_EQ(dialogs.told.size(), 1u) << "no printer: said, and nothing else happens";

  // Both ways end in a PDF that readers of its own look into.
  const auto read = [](const char* reader, const QStringList& arguments) {
    QProcess process;
    process.start(QString::fromUtf8(reader), arguments);
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << reader;
    return process.readAllStandardOutput();
  };
  const auto expectPhotoOnA4 = [&](const QString& file) {
    EXPECT_TRUE(read("pdfinfo", {file}).contains("(A4)"));
    EXPECT_TRUE(read("pdfinfo", {file}).contains("Pages:           1\n"));
    read("pdftoppm",
         {QStringLiteral("-png"), QStringLiteral("-singlefile"), file, QStringLiteral("feuille")});
    const QImage sheet(QStringLiteral("feuille.png"));
    int photo = 0;
    for (int y = 0; y < sheet.height(); ++y)
      for (int x = 0; x < sheet.width(); ++x) photo += IsRed(sheet.pixel(x, y));
    EXPECT_GT(photo, 100 * 150) << "a picture of 100 pixels at 150 dots an inch is larger";
  };
  desktop->Cv().makePrinter = [] {
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(QStringLiteral("papier.pdf"));
    return printer;
  };
  bool printed = false;
  QObject::connect(&Page(), &QWebEngineView::printFinished, [&](bool success) { printed = success; });
  print->trigger();
  ASSERT_TRUE(WaitFor([&] { return printed; }, Patience));
  expectPhotoOnA4(QStringLiteral("papier.pdf"));

  menu->findChild<QAction*>(QStringLiteral("PrévisualiserCV"))->trigger();
  PrintPreviewWindow* preview = desktop->Cv().PreviewWindow();
  ASSERT_TRUE(preview != nullptr && preview->isVisible());
  ASSERT_TRUE(WaitFor([&] { return preview->IsComplete(); }, Patience));
  bool saved = false;
  preview->SavePdf(QStringLiteral("apercu.pdf"), [&](bool stands) { saved = stands; });
  ASSERT_TRUE(WaitFor([&] { return saved; }, Patience));
  expectPhotoOnA4(QStringLiteral("apercu.pdf"));
  EXPECT_TRUE(read("pdftotext", {QStringLiteral("apercu.pdf"), QStringLiteral("-")}).contains("Licence"));
  EXPECT_EQ(dialogs.told.size(), 1u);
}

TEST_F(CvWindowTest, WhatIsTypedIsKeptWhenAnotherCvOpensAndWhenTheEditorCloses) {
  Click("SaiseDetaillee");
  Type("Nom", QStringLiteral("Aaron"));
  Type("Tel", QStringLiteral("0102030405"));
  // No key of the keyboard moves the focus; and the new file comes before the one that is opened.
  QTest::keyClick(&desktop->Main(), Qt::Key_1, Qt::ControlModifier);
  ASSERT_TRUE(WaitFor([&] { return Form().NomCV == u"Ancien"; }, Patience)) << ToUtf8(Form().NomCV);
  EXPECT_NE(Bytes("CV/Aaron.dat").find("Tel=0102030405\r\n"), std::string::npos);
  EXPECT_EQ(Line("Nom"), QStringLiteral("Ancien"));

  Type("Ville", QStringLiteral("lyon"));
  QTest::keyClick(&desktop->Main(), Qt::Key_M, Qt::AltModifier);
  ASSERT_TRUE(WaitFor([&] { return desktop->Cv().Window() == nullptr; }, Patience));
  EXPECT_NE(Bytes("CV/Ancien.dat").find("Ville=Lyon\r\n"), std::string::npos) << "left by its rule";

  desktop->Cv().OpenFile(u"Ancien.dat");
  Type("Etudes", QStringLiteral("Licence"));
  desktop->Main().close();
  EXPECT_NE(Bytes("CV/Ancien.dat").find("Etudes=Licence\r\n"), std::string::npos);
  EXPECT_TRUE(failures.empty());
}

TEST_F(CvWindowTest, WhatIsTypedIsSavedBeforeItsFieldIsLeft) {
  desktop->Cv().OpenFile(u"Ancien.dat");
  Type("Etudes", QStringLiteral("Licence"));
  EXPECT_TRUE(
      WaitFor([&] { return Bytes("CV/Ancien.dat").find("Etudes=Licence") != std::string::npos; }, Patience));
  EXPECT_TRUE(Find("Etudes")->hasFocus());
  // A name that is half typed makes no file.
  Type("Nom", QStringLiteral("Du"));
  Wait(4000);
  EXPECT_EQ(Bytes("CV/Du.dat"), "");
}

TEST_F(CvWindowTest, AnOldIdentityBlockDoesNotUndoWhatWasCorrected) {
  Find<QPlainTextEdit>("Identite")
      ->setPlainText(QStringLiteral("Julie Marchand\n12 rue des Lilas\n69003 Lyon"));
  Find("Fonction")->setFocus();
  Find<QLineEdit>("Adresse1")->setText(QStringLiteral("77 Rue Longue"));
  QTest::keyClick(&desktop->Main(), Qt::Key_M, Qt::AltModifier);
  ASSERT_TRUE(WaitFor([&] { return desktop->Cv().Window() == nullptr; }, Patience));
  desktop->Cv().OpenNew();
  ASSERT_TRUE(Find("Identite")->hasFocus());
  desktop->Cv().OpenFile(u"Marchand Julie.dat");
  ASSERT_FALSE(Find<QPlainTextEdit>("Identite")->toPlainText().isEmpty());
  Find("Fonction")->setFocus();
  EXPECT_EQ(Line("Adresse1"), QStringLiteral("77 Rue Longue"));
}

TEST_F(CvWindowTest, TheKeyOfAnEntryLeavesTheFieldThatIsTypedIn) {
  Click("SaiseDetaillee");
  Type("Nom", QStringLiteral("Marchand"));
  Type("Etudes", QStringLiteral("Licence"));
  QTest::keyClick(&desktop->Main(), Qt::Key_P, Qt::AltModifier);
  ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }, Patience));
  QApplication::activePopupWidget()->close();
  EXPECT_TRUE(SeesAtLast(QStringLiteral("Licence"))) << "what the menu prints is what was typed";
}

TEST_F(CvWindowTest, APageIsPrintedToItsEndWhenTheEditorCloses) {
  desktop->Cv().OpenFile(u"Ancien.dat");
  ASSERT_TRUE(SeesAtLast(QStringLiteral("Ancien")));
  std::weak_ptr<QPrinter> printer;
  desktop->Cv().makePrinter = [&printer] {
    auto made = std::make_shared<QPrinter>(QPrinter::HighResolution);
    made->setOutputFormat(QPrinter::PdfFormat);
    made->setOutputFileName(QStringLiteral("papier.pdf"));
    printer = made;
    return made;
  };
  desktop->Cv().Print();
  desktop->Windows().Unload(EditorForm);
  EXPECT_EQ(desktop->Cv().Window(), nullptr);
  EXPECT_FALSE(printer.expired()) << "the page is on its way to it";
  ASSERT_TRUE(WaitFor([&] { return printer.expired(); }, Patience));
  EXPECT_TRUE(ReadBytes("papier.pdf").value_or("").starts_with("%PDF"));
  EXPECT_TRUE(dialogs.told.empty());

  desktop->Cv().OpenFile(u"Ancien.dat");
  desktop->Cv().Preview();
  const QPointer<PrintPreviewWindow> preview = desktop->Cv().PreviewWindow();
  ASSERT_TRUE(WaitFor([&] { return preview->IsComplete(); }, Patience));
  bool saved = false;
  preview->SavePdf(QStringLiteral("apercu.pdf"), [&](bool stands) { saved = stands; });
  delete preview.data();
  ASSERT_TRUE(WaitFor([&] { return saved; }, Patience));
  EXPECT_TRUE(ReadBytes("apercu.pdf").value_or("").starts_with("%PDF"));
}

}  // namespace
}  // namespace talvor
