#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextLayout>
#include <QTimer>
#include <QWebEngineView>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

#include "desktop/desks/cv_desk.h"
#include "desktop/platform/qt_dialogs.h"
#include "desktop/shell/home_window.h"
#include "desktop/shell/user_guide.h"
#include "tests/desktop/desktop_fixture.h"

namespace talvor {
namespace {

class MainWindowTest : public DesktopTest {
 protected:
  QString Information() { return Find<QLabel>("Information")->text(); }
};

TEST_F(MainWindowTest, TheSlotsShowTheFilesAndTellTheirNames) {
  const auto folder = scratch.Path() / "Talvor";
  std::ofstream(folder / "CV" / "Julie & Co.dat") << "Nom=Marchand\r\n";
  std::ofstream(folder / "Lettres" / "Réponse (ER).dat") << "";
  Restart();
  auto& header = desktop->Main().Header();
  EXPECT_EQ(header.Slot(0).Shown().caption, QStringLiteral("Julie & Co"));
  EXPECT_EQ(header.Slot(0).accessibleName(), QStringLiteral("Julie & Co.dat"));
  EXPECT_EQ(header.Slot(5).Shown().badge, QStringLiteral("ER"));
  EXPECT_TRUE(header.Slot(1).isVisible());
  EXPECT_FALSE(header.Slot(2).isVisible());

  header.Slot(0).setFocus();
  EXPECT_EQ(Information(), QStringLiteral("CV : Julie & Co.dat"));
  QTest::keyClick(&header.Slot(0), Qt::Key_Right);
  EXPECT_TRUE(header.Slot(1).hasFocus());
  EXPECT_EQ(Information(), QStringLiteral("Créer nouveau"));
  QTest::keyClick(&header.Slot(1), Qt::Key_Right);
  EXPECT_TRUE(header.Slot(0).hasFocus()) << "hidden slots are passed over";
}

TEST_F(MainWindowTest, ASavedRowTakesTheSignOfNewFromTheSlotOfTheCandidatures) {
  auto& slot = desktop->Main().Header().Slot(Principale::CandidatureSlot);
  EXPECT_EQ(slot.Shown().icon, QStringLiteral("new"));
  SaveRow(QStringLiteral("Maçon"));
  EXPECT_EQ(slot.Shown().icon, QStringLiteral("case"));
  EXPECT_TRUE(slot.Shown().current);
}

TEST_F(MainWindowTest, MenuClosesTheFormsAndTheNextLoadBeginsAnew) {
  SaveRow(QStringLiteral("Maçon"));
  QTest::mouseClick(Find("Label2"), Qt::LeftButton);
  EXPECT_FALSE(desktop->Windows().FormeVisible(u"FormCand"));
  EXPECT_TRUE(desktop->Windows().FormeVisible(u"AssistantTexte"));
  EXPECT_EQ(desktop->Candidatures().Window(), nullptr);
  QTest::mouseDClick(&desktop->Main().Header().Slot(Principale::CandidatureSlot), Qt::LeftButton);
  ASSERT_NE(desktop->Candidatures().Window(), nullptr);
  EXPECT_TRUE(Line("Intitule").isEmpty());
  EXPECT_EQ(desktop->Candidatures().Form().Num, u"");
  EXPECT_EQ(Rows().size(), 2);
}

TEST_F(MainWindowTest, WhatIsTypedInARowIsSavedBeforeMenuOrTheEndClosesItsForm) {
  SaveRow(QStringLiteral("Maçon"));
  Type("Ville", QStringLiteral("Lyon"));
  QTest::keyClick(&desktop->Main(), Qt::Key_M, Qt::AltModifier);
  ASSERT_TRUE(WaitFor([&] { return desktop->Candidatures().Window() == nullptr; }, 5000));
  EXPECT_EQ(Read(1).Ville, u"Lyon") << "before the next tick of its timer";

  desktop->Windows().Show(u"FormCand");
  ClickLeaf(u"s1");
  Type("NomContact", QStringLiteral("Mme Roy"));
  desktop->Main().close();
  EXPECT_EQ(Read(1).NomContact, u"Mme Roy");
}

TEST_F(MainWindowTest, TheHomePanelLeadsToTheCandidatures) {
  QTest::mouseClick(Find("Label2"), Qt::LeftButton);
  const auto row = [&](const QString& title) -> HomeRowButton* {
    for (auto* button : desktop->Main().findChildren<QAbstractButton*>())
      if (auto* found = dynamic_cast<HomeRowButton*>(button); found && found->accessibleName() == title)
        return found;
    return nullptr;
  };
  ASSERT_NE(row(QStringLiteral("Gérer les candidatures")), nullptr);
  row(QStringLiteral("Gérer les candidatures"))->click();
  auto* back = row(QStringLiteral("Retour au menu principal"));
  ASSERT_NE(back, nullptr);
  desktop->Model().ImageMenu[Principale::CandidatureSlot].picture = SlotPicture::ImageCandidature;
  row(QStringLiteral("Gestion manuelle des candidatures"))->click();
  EXPECT_TRUE(desktop->Windows().FormeVisible(u"FormCand"));
}

TEST_F(MainWindowTest, TheHintFadesInOverTheFormAndLeavesTheFocusAlone) {
  Find("Intitule")->setFocus();
  bool seen = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    auto* hint = desktop->Main().findChild<QFrame*>(QStringLiteral("Guide"));
    if (seen || hint == nullptr || !hint->isVisible()) return;
    seen = true;
    EXPECT_EQ(hint->findChild<QLabel*>(QStringLiteral("Label1"))->text(), QStringLiteral("Un conseil"));
    EXPECT_GT(hint->geometry().center().x(), desktop->Main().width() / 2);
    EXPECT_TRUE(Find("Intitule")->hasFocus());
    TypeKeys(Find("Intitule"), QStringLiteral("abc"));
    // The hint ends early with the main window.
    desktop->Main().hide();
  });
  watch.start(20);
  QElapsedTimer elapsed;
  elapsed.start();
  desktop->Model().AfficherGuide(u"Un conseil");
  EXPECT_TRUE(seen);
  EXPECT_LT(elapsed.elapsed(), 4000);
  EXPECT_EQ(Line("Intitule"), QStringLiteral("abc"));
  EXPECT_EQ(desktop->Windows().WindowOf(u"Guide"), nullptr);
}

TEST_F(MainWindowTest, AMissingDatabaseEndsTheStart) {
  desktop.reset();
  std::filesystem::remove(scratch.Path() / "Talvor" / "Talvor.mdb");
  Desktop other(theme, environment, clock, dialogs);
  EXPECT_FALSE(other.StartAtOnce());
  EXPECT_EQ(dialogs.told.back(), u"La base n'est pas accessible");
  EXPECT_FALSE(other.Main().isVisible());
}

TEST_F(MainWindowTest, ADamagedDatabaseIsReportedWithItsFileAndItsCause) {
  SaveRow(QStringLiteral("Maçon"));
  std::ofstream(scratch.Path() / "Talvor" / "Talvor.mdb") << "ceci n'est pas une base de données, loin de là";
  Type("Ville", QStringLiteral("Lyon"));
  ASSERT_TRUE(WaitFor([&] { return !failures.empty(); }, 6000)) << "the save of the timer";
  EXPECT_NE(failures[0].find("Talvor.mdb"), std::string::npos);
  EXPECT_EQ(failures[0].find("exception"), std::string::npos) << failures[0];
}

TEST_F(MainWindowTest, BoxesAnswerInFrench) {
  QtDialogs boxes;
  boxes.SetFrame(&desktop->Main());
  const auto press = [](const QString& caption) {
    QTimer::singleShot(0, [caption] {
      QString captions;
      for (auto* button : QApplication::activeModalWidget()->findChildren<QPushButton*>()) {
        const QString text = button->text().remove(QLatin1Char('&'));
        captions += text + QLatin1Char(' ');
        if (text == caption) return button->click();
      }
      ADD_FAILURE() << captions.toStdString();
      QApplication::activeModalWidget()->close();
    });
  };
  press(QStringLiteral("OK"));
  EXPECT_TRUE(boxes.Confirm(u"Oui <b>ou</b> non ?"));
  press(QStringLiteral("Annuler"));
  EXPECT_FALSE(boxes.Confirm(u"Oui ou non ?"));
}

TEST_F(MainWindowTest, TheGuideOpensFromTheAboutBoxWithItsPicturesAndChapters) {
  Click("Logo");
  QWidget* about = desktop->Windows().WindowOf(u"APropos");
  ASSERT_NE(about, nullptr);
  QTest::mouseClick(about->findChild<QPushButton*>(QStringLiteral("LienGuide")), Qt::LeftButton);
  auto* guide = static_cast<UserGuideWindow*>(desktop->Windows().WindowOf(UserGuideForm));
  ASSERT_NE(guide, nullptr);
  QTextBrowser& pages = guide->Pages();
  int chapters = 0;
  int pictures = 0;
  int links = 0;
  for (QTextBlock block = pages.document()->begin(); block.isValid(); block = block.next()) {
    chapters += block.blockFormat().headingLevel() == 2;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextCharFormat format = it.fragment().charFormat();
      if (format.isImageFormat()) {
        ++pictures;
        const QUrl picture(pages.source().resolved(QUrl(format.toImageFormat().name())));
        const QImage file(QLatin1Char(':') + picture.path());
        ASSERT_FALSE(file.isNull()) << picture.toString().toStdString();
        const double shown = file.height() * format.toImageFormat().width() / file.width();
        EXPECT_LT(block.layout()->boundingRect().height(), shown + 20) << "a blank below the picture";
      }
      if (!format.isAnchor()) continue;
      ++links;
      Q_EMIT pages.anchorClicked(QUrl(format.anchorHref()));
      EXPECT_EQ(pages.textCursor().block().text(), it.fragment().text()) << "a chapter that is not there";
    }
  }
  EXPECT_GE(chapters, 9);
  EXPECT_GE(pictures, 7);
  EXPECT_EQ(links, chapters);
}

TEST_F(MainWindowTest, InASmallWindowNoFieldIsCutOrTooNarrowToBeRead) {
  desktop->Main().resize(1024, 768);
  Click("Action4");
  Wait(50);
  auto* title = Find("Intitule");
  QWidget* around = title;
  while (around != nullptr && qobject_cast<QScrollArea*>(around) == nullptr) around = around->parentWidget();
  ASSERT_NE(around, nullptr);
  EXPECT_TRUE(Find("FormCand")->findChild<QWebEngineView*>()->isVisible());
  EXPECT_EQ(static_cast<QScrollArea*>(around)->horizontalScrollBar()->maximum(), 0);

  desktop->Cv().OpenNew();
  Click("SaiseDetaillee");
  Wait(50);
  for (const char* name : {"LieuNaissance", "Ville"}) EXPECT_GE(Find(name)->width(), 56) << name;
  for (const int wide : {1280, 1024}) {
    desktop->Main().resize(wide, 768);
    Wait(50);
    EXPECT_EQ(Find("Prénom")->y() > Find("Nom")->y(), wide == 1024) << "one column of fields";
  }
}

TEST(MainWindow, IsNoLargerThanItsScreenNorSmallerThanItsLeast) {
  for (const auto& [screen, size] : {std::pair{QSize(1920, 1050), QSize(1280, 800)},
                                     {QSize(1366, 740), QSize(1280, 700)},
                                     {QSize(1024, 768), QSize(1024, 728)},
                                     {QSize(960, 540), QSize(960, 500)},
                                     {QSize(800, 600), QSize(840, 560)},
                                     {QSize(640, 480), QSize(840, 440)}})
    EXPECT_EQ(MainWindow::FirstSizeOn(screen), size) << screen.width();
}

}  // namespace
}  // namespace talvor
