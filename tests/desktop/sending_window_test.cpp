#include <QAccessible>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QRadioButton>
#include <filesystem>
#include <fstream>
#include <string>

#include "base/code_page.h"
#include "base/line_file.h"
#include "desktop/desks/cv_desk.h"
#include "desktop/desks/sending_desk.h"
#include "desktop/platform/page_pdf.h"
#include "tests/desktop/desktop_fixture.h"
#include "tracking/status_lists.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

class SendingWindowTest : public DesktopTest {
 protected:
  SendingWindowTest() {
    environment.values[u"userprofile"] = *TextOf(scratch.Path());
    environment.values[u"ALLUSERSPROFILE"] = u"C:\\ProgramData";
    fs::create_directory(scratch.Path() / "Documents");
    Write(u"Lettres/Annonce.dat",
          u"Text1=#Titre#,<N>Le poste de #Intitule# chez #Societe# m'intéresse.\r\nEmail=zoe@mail.fr\r\n"
          u"Nom=ROY\r\nPrénom=Zoé\r\n");
  }
  ~SendingWindowTest() override { qunsetenv("MAILER"); }

  static void Write(TextView file, TextView text) {
    ASSERT_FALSE(WriteBytes(PathOf(file), ToCodePage(text)).Failed());
  }
  // The user's mail client, which refuses or takes the message.
  void Client(const char* outcome) {
    std::ofstream("client.sh") << "#!/bin/sh\n" << outcome << '\n';
    fs::permissions("client.sh", fs::perms::owner_all);
    qputenv("MAILER", QByteArray::fromStdString((fs::current_path() / "client.sh").string()));
  }
  template <class Widget = QWidget>
  Widget* InWindow(TextView form, const char* name) {
    QWidget* window = desktop->Windows().WindowOf(form);
    auto* found = window == nullptr ? nullptr : window->findChild<Widget*>(QString::fromUtf8(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  void Press(TextView form, const char* name) { QTest::mouseClick(InWindow(form, name), Qt::LeftButton); }
  QString Field(const char* name) { return InWindow<QLineEdit>(ApplyForm, name)->text(); }
  QString Letter() { return InWindow<QPlainTextEdit>(ApplyForm, "Texte")->toPlainText(); }
  bool IsFit(const char* mark) {
    return InWindow(ApplyForm, mark)->accessibleName().contains(QStringLiteral("Ok"));
  }
};

TEST_F(SendingWindowTest, TheWholeRoadFromAPastedAdvertisementToItsAgeing) {
  QFile sample(QStringLiteral(TALVOR_DATA_FOLDER "/exemples/annonce.txt"));
  ASSERT_TRUE(sample.open(QIODevice::ReadOnly));
  Click("Action0");
  Find<QPlainTextEdit>("Description")->insertPlainText(QString::fromUtf8(sample.readAll()));
  Window().Tick500();
  ASSERT_FALSE(Line("Intitule").isEmpty());
  Click("Action3");
  ASSERT_EQ(Count(), 1);
  ASSERT_EQ(Read(1).Statut, NonEmise);
  ClickLeaf(u"s1");

  ASSERT_TRUE(Find("PicturePostuler")->isVisible());
  Click("PicturePostuler");
  QWidget* window = desktop->Windows().WindowOf(ApplyForm);
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Letter(), QString());  // the stored letter, empty as it is
  EXPECT_FALSE(IsFit("Ok2"));
  Press(ApplyForm, "Modele0");
  EXPECT_TRUE(Letter().contains(Line("Intitule"))) << Letter().toStdString();
  Press(ApplyForm, "Messagerie0");
  EXPECT_EQ(InWindow<BoutonTLV>(ApplyForm, "BoutonTLV1")->Libelle().remove(QLatin1Char('&')),
            QStringLiteral("Marquer comme envoyée"));
  Press(ApplyForm, "BoutonTLV1");
  EXPECT_EQ(dialogs.told.size(), 1u);
  EXPECT_EQ(Read(1).Statut, ListeStatuts[1]);
  EXPECT_EQ(Read(1).DateEnvoi, u"01/03/2026");
  EXPECT_EQ(Read(1).Lettre, WithCrLf(FromQt(Letter())));
  EXPECT_EQ(Line("DateEnvoi"), QStringLiteral("01/03/2026")) << "the form behind does not follow";

  // Thirty days are not enough, the thirty-first is.
  clock.today = Day{clock.today.serial + 31};
  Restart();
  EXPECT_EQ(Read(1).Statut, u"EMISE - SANS REPONSE");
  EXPECT_TRUE(Rows().join(QLatin1Char('\n')).contains(QStringLiteral("sans reponse")))
      << Rows().join(u'\n').toStdString();
}

TEST_F(SendingWindowTest, ASendMarksTheCandidatureOnlyOnceTheClientHasTheMessage) {
  Click("Action0");
  Type("Intitule", QStringLiteral("Soudeur"));
  Type("Email", QStringLiteral("rh@acme.fr"));
  Click("Action3");
  std::ofstream(scratch.Path() / "Documents" / "cv.pdf") << "x";
  desktop->Sending().OpenFromMenu();
  EXPECT_EQ(Field("EmailDest"), QStringLiteral("rh@acme.fr"));
  EXPECT_FALSE(InWindow(ApplyForm, "BoutonTLV2")->isVisible());
  Press(ApplyForm, "Modele0");
  Press(ApplyForm, "Parcourir");
  auto* list = InWindow<QListWidget>(ApplyForm, "File2");
  ASSERT_TRUE(list->isVisible());
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
  EXPECT_FALSE(list->isVisible());
  EXPECT_EQ(FromQt(Field("PJ")), *TextOf(scratch.Path() / "Documents" / "cv.pdf"));
  EXPECT_TRUE(WaitFor([&] { return IsFit("Ok4"); }, 3000)) << "the timer does not run";
  for (const char* mark : {"Ok0", "Ok1", "Ok2", "Ok3"}) EXPECT_TRUE(IsFit(mark)) << mark;

  Client("exit 1");
  Press(ApplyForm, "BoutonTLV1");
  EXPECT_EQ(Read(1).Statut, NonEmise);
  EXPECT_EQ(dialogs.told.size(), 2u);  // the failure, and where the message has been left
  EXPECT_TRUE(InWindow(ApplyForm, "BoutonTLV1")->isEnabled());

  Client("exit 0");
  QTest::keyClick(InWindow(ApplyForm, "Objet"), Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(dialogs.told.back(), u"Candidature envoyée");
  EXPECT_EQ(Read(1).Statut, ListeStatuts[1]);
  EXPECT_FALSE(InWindow(ApplyForm, "BoutonTLV1")->isVisible());

  // Closed and opened again from its picture, a sent one has no main button.
  desktop->Windows().WindowOf(ApplyForm)->close();
  EXPECT_EQ(desktop->Windows().WindowOf(ApplyForm), nullptr);
  ClickLeaf(u"s1");
  desktop->Candidatures().Form().OpenApplyForm();
  EXPECT_FALSE(InWindow(ApplyForm, "BoutonTLV1")->isVisible());
}

TEST_F(SendingWindowTest, AFormOpenForOneCandidatureBeginsAnewForAnother) {
  for (const char* post : {"Soudeur", "Maçon"}) {
    Click("Action0");
    Type("Intitule", QString::fromUtf8(post));
    Type("Email", QString::fromUtf8(post) + QStringLiteral("@acme.fr"));
    Click("Action3");
    desktop->Sending().OpenFromMenu();
    EXPECT_EQ(Field("EmailDest"), QString::fromUtf8(post) + QStringLiteral("@acme.fr"));
  }
  // The same one keeps what was typed.
  TypeKeys(InWindow(ApplyForm, "Objet"), QStringLiteral(" !"));
  const QString subject = Field("Objet");
  desktop->Sending().OpenFromMenu();
  EXPECT_EQ(Field("Objet"), subject);
}

TEST_F(SendingWindowTest, AnAdvertisementOnTheWebIsAnsweredThereUnlessAnAddressIsTyped) {
  Click("Action0");
  Type("Intitule", QStringLiteral("Soudeur"));
  Type("www", QStringLiteral("about:blank#offre"));
  desktop->Candidatures().Form().RunAction(DetailAction::ShowApplyForm);
  EXPECT_TRUE(Letter().contains(QStringLiteral("Soudeur")));
  EXPECT_FALSE(InWindow(ApplyForm, "Messagerie1")->isEnabled());
  EXPECT_TRUE(InWindow<QRadioButton>(ApplyForm, "Messagerie0")->isChecked());
  Press(ApplyForm, "BoutonTLV2");
  EXPECT_EQ(Line("AdresseWeb"), QStringLiteral("about:blank#offre"));
  EXPECT_TRUE(desktop->Candidatures().Form().WebPaneVisible);

  TypeKeys(InWindow(ApplyForm, "EmailDest"), QStringLiteral("rh@acme.fr"));
  EXPECT_TRUE(InWindow(ApplyForm, "Messagerie1")->isEnabled());
  EXPECT_TRUE(InWindow<QRadioButton>(ApplyForm, "Messagerie1")->isChecked());
  EXPECT_FALSE(InWindow(ApplyForm, "BoutonTLV2")->isVisible());
  EXPECT_EQ(desktop->Sending().Apply()->EmailDest, u"rh@acme.fr");
}

// The text of a PDF.
QString PdfText(const fs::path& file) {
  QProcess reader;
  reader.start(QStringLiteral("pdftotext"), {QString::fromStdString(file.string()), QStringLiteral("-")});
  EXPECT_TRUE(reader.waitForFinished());
  return QString::fromUtf8(reader.readAllStandardOutput());
}

class ConvertWindowTest : public SendingWindowTest {
 protected:
  // A CV with a photo in the editor, and its conversion.
  ConvertWindowTest() {
    for (const auto& entry : fs::directory_iterator{TALVOR_DATA_FOLDER "/Modeles"})
      fs::copy_file(entry.path(), fs::path("Modeles") / entry.path().filename());
    fs::copy_file(TALVOR_TEST_DATA "/cv/riche.dat", "CV/Riche.dat");
    fs::copy_file(TALVOR_TEST_DATA "/cv/photo.png", "Modeles/Riche.jpg");
    // Opening a document ends in a program that does nothing.
    fs::create_directory("bin");
    std::ofstream("bin/xdg-open") << "#!/bin/sh\necho \"$1\" >> " << fs::current_path().string()
                                  << "/ouverts\n";
    fs::permissions("bin/xdg-open", fs::perms::owner_all);
    qputenv("PATH", QByteArray::fromStdString((fs::current_path() / "bin").string()) + ":" + path);
    desktop->Cv().OpenFile(u"Riche.dat");
    desktop->Windows().Show(ConvertForm);
  }
  ~ConvertWindowTest() override { qputenv("PATH", path); }

  fs::path Converted(const char* name) { return scratch.Path() / "Documents" / name; }
  bool Opened(const fs::path& file) {
    return WaitFor(
        [&] { return ReadBytes("ouverts").value_or("").find(file.string() + "\n") != std::string::npos; },
        5000);
  }

  QByteArray path = qgetenv("PATH");
};

TEST_F(ConvertWindowTest, TheCvBecomesAWordDocumentThatOpensAndThatTheNextOpeningShows) {
  EXPECT_EQ(InWindow<QLabel>(ConvertForm, "Info")->text(), QStringLiteral("Aucun fichier trouvé."));
  Press(ConvertForm, "BoutonTLV2");
  EXPECT_EQ(desktop->Windows().WindowOf(ConvertForm), nullptr);
  EXPECT_TRUE(dialogs.told.empty()) << ToUtf8(dialogs.told.front());
  EXPECT_TRUE(ReadBytes(Converted("Riche.doc")).value_or("").starts_with("\xD0\xCF\x11\xE0"));
  EXPECT_TRUE(Opened(Converted("Riche.doc")));

  desktop->Windows().Show(ConvertForm);
  EXPECT_TRUE(
      InWindow<QPushButton>(ConvertForm, "Info")->text().startsWith(QStringLiteral("Riche.doc     ")));
  Press(ConvertForm, "BoutonTLV1");
  EXPECT_EQ(desktop->Windows().WindowOf(ConvertForm), nullptr);
}

TEST_F(ConvertWindowTest, ThePdfIsThePageOfTheEditorAndCanBeAttached) {
  Press(ConvertForm, "ConvertirPDF");
  EXPECT_TRUE(dialogs.told.empty()) << ToUtf8(dialogs.told.front());
  const QString text = PdfText(Converted("Riche.pdf"));
  for (const char* part : {"LAMBERT", "Responsable logistique", "Trésorière", "1,4 M€"})
    EXPECT_TRUE(text.contains(QString::fromUtf8(part))) << part;
  QProcess images;
  images.start(QStringLiteral("pdfimages"),
               {QStringLiteral("-list"), QString::fromStdString(Converted("Riche.pdf").string())});
  ASSERT_TRUE(images.waitForFinished());
  EXPECT_GT(images.readAllStandardOutput().count('\n'), 2) << "the photo is missing";
  EXPECT_TRUE(Opened(Converted("Riche.pdf")));

  desktop->Windows().Show(ApplyForm);
  Press(ApplyForm, "Parcourir");
  auto* list = InWindow<QListWidget>(ApplyForm, "File2");
  ASSERT_EQ(list->count(), 1);
  EXPECT_EQ(list->item(0)->text(), QStringLiteral("Riche.pdf"));
}

TEST_F(ConvertWindowTest, APdfThatNoProgramOpensIsToldWithItsPlace) {
  std::ofstream("bin/xdg-open") << "#!/bin/sh\nexit 3\n";
  Press(ConvertForm, "ConvertirPDF");
  ASSERT_TRUE(WaitFor([&] { return !dialogs.told.empty(); }));
  EXPECT_TRUE(ReadBytes(Converted("Riche.pdf")).value_or("").starts_with("%PDF"));
  EXPECT_TRUE(Contains(dialogs.told.front(), *FromUtf8(Converted("Riche.pdf").string())));
}

TEST_F(ConvertWindowTest, APdfThatCannotBeWrittenLeavesTheOldOne) {
  std::ofstream(Converted("Riche.pdf")) << "old";
  PagePdf printer;
  EXPECT_TRUE(
      Contains(printer.Export("absent.html", Converted("Riche.pdf")).Why().Cause(), u"pas pu être lue"));
  EXPECT_TRUE(
      Contains(printer.Export("Modeles/CVtemp.html", scratch.Path() / "absent" / "a.pdf").Why().Cause(),
               u"n’existe pas"));
  EXPECT_EQ(ReadBytes(Converted("Riche.pdf")), "old");
}

}  // namespace
}  // namespace talvor
