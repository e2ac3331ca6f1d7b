#include <QApplication>
#include <QClipboard>
#include <QListWidget>
#include <QMenu>
#include <QScrollBar>
#include <QTimer>

#include <vector>

#include "tests/desktop/desktop_fixture.h"
#include "tracking/form_cand_messages.h"

namespace talvor {
namespace {

using FormCandWindowTest = DesktopTest;

constexpr int Patience = 5000;  // milliseconds

const QString Advertisement = QStringLiteral(
    "Développeur C++ H/F\n\nSociété : ACME\nContrat : CDI\nLieu : Lyon\nSalaire : 40 000 euros\n"
    "Référence : AB-1234\nContact : Claire Hauteville\nTéléphone : 04 72 00 00 14\n"
    "Courriel : recrutement@acme.example\nDescription du poste : vous développez des logiciels.\n");

TEST_F(FormCandWindowTest, APastedAdvertisementBecomesARowThatAgesWithTheCalendar) {
  auto* description = Find<QPlainTextEdit>("Description");
  QGuiApplication::clipboard()->setText(Advertisement);
  description->setFocus();
  description->paste();
  ASSERT_TRUE(WaitFor([&] { return !Line("Intitule").isEmpty(); }, Patience)) << "the paste watch";
  EXPECT_EQ(Line("Email"), QStringLiteral("recrutement@acme.example"));
  EXPECT_EQ(Count(), 0) << "a paste saves nothing";

  Click("Action3");
  ASSERT_EQ(Count(), 1);
  EXPECT_EQ(Read(1).Email, u"recrutement@acme.example");
  ASSERT_EQ(Rows().size(), 2);
  EXPECT_EQ(Rows()[0], QStringLiteral("Candidatures non émises"));

  // "EMISE - EN ATTENTE DE REPONSE" out of the list beside the status.
  Find<QAction>("Image2")->trigger();
  auto* statuses = Find<QListWidget>("ListeStatuts");
  ASSERT_TRUE(statuses->isVisible());
  EXPECT_EQ(statuses->currentRow(), 0);
  QTest::mouseClick(statuses->viewport(), Qt::LeftButton, {},
                    statuses->visualItemRect(statuses->item(1)).center());
  EXPECT_FALSE(statuses->isVisible());
  EXPECT_EQ(Line("DateEnvoi"), QStringLiteral("01/03/2026"));
  EXPECT_EQ(Read(1).DateEnvoi, u"01/03/2026") << "a status chosen on a saved row is saved";
  EXPECT_EQ(Rows()[0], QStringLiteral("Candidatures émises - en attente de reponse"));

  clock.today.serial += 31;
  Restart();
  EXPECT_EQ(Rows()[0], QStringLiteral("Candidatures émises - sans reponse"));
  EXPECT_TRUE(failures.empty());
}

TEST_F(FormCandWindowTest, WhatIsTypedIsSavedByTheTimerAndDisturbsNothing) {
  SaveRow(QStringLiteral("Maçon"));
  for (int i = 0; i < 60; ++i) SaveRow(QStringLiteral("Peintre"));
  ClickLeaf(u"s1");
  auto* bar = Tree().verticalScrollBar();
  ASSERT_GT(bar->maximum(), 100);
  bar->setValue(100);
  auto* remarks = Find<QPlainTextEdit>("Remarques");
  remarks->setFocus();
  TypeKeys(remarks, QStringLiteral("un deux"));
  QTextCursor caret = remarks->textCursor();
  caret.setPosition(1);
  caret.setPosition(4, QTextCursor::KeepAnchor);
  remarks->setTextCursor(caret);

  ASSERT_TRUE(WaitFor([&] { return Read(1).Remarques == u"un deux"; }, 2 * Patience));
  EXPECT_EQ(bar->value(), 100) << "the tree keeps its place";
  EXPECT_FALSE(Tree().selectionModel()->hasSelection()) << "a rebuild selects nothing";
  EXPECT_EQ(remarks->textCursor().position(), 4);
  EXPECT_EQ(remarks->textCursor().anchor(), 1);
  EXPECT_TRUE(remarks->hasFocus());
  EXPECT_TRUE(remarks->document()->isUndoAvailable()) << "the text has not been set anew";
}

TEST_F(FormCandWindowTest, LinesAndNoBreakSpacesCrossTheEdgeUnharmed) {
  SaveRow(QStringLiteral("Maçon"));
  auto* lettre = Find<QPlainTextEdit>("Lettre");
  lettre->setPlainText(QStringLiteral("Madame\u00A0:\n\nBonjour"));
  Click("Action3");
  EXPECT_EQ(Read(1).Lettre, u"Madame\u00A0:\r\n\r\nBonjour");
  Click("Action0");
  EXPECT_TRUE(lettre->toPlainText().isEmpty());
  ClickLeaf(u"s1");
  EXPECT_EQ(ExactText(*lettre), QStringLiteral("Madame\u00A0:\n\nBonjour"));
}

TEST_F(FormCandWindowTest, ARefusedSaveIsToldOnce) {
  Click("Action3");
  EXPECT_EQ(dialogs.told, (std::vector<Text>{Text{messages::TitleRequired}}));
  EXPECT_TRUE(Find("Intitule")->property("invalid").toBool());
  SaveRow(QStringLiteral("Maçon"));
  auto* sent = Find<QLineEdit>("DateEnvoi");
  sent->setText(QStringLiteral("32/01/2026"));
  Window().Tick3000();
  Window().Tick3000();
  EXPECT_EQ(dialogs.told.size(), 2u);
  EXPECT_TRUE(sent->hasFocus());
  EXPECT_EQ(sent->text(), QStringLiteral("32/01/2026"));
  EXPECT_FALSE(Find("Intitule")->property("invalid").toBool());
  EXPECT_TRUE(sent->property("invalid").toBool());
  EXPECT_EQ(sent->accessibleDescription(), ToQt(messages::BadDate));
  sent->setText(QStringLiteral("3"));
  EXPECT_FALSE(sent->property("invalid").toBool()) << "at fault until its text changes";
  EXPECT_EQ(Read(2).DateEnvoi, u"") << "the refused first save has lost its number";
}

TEST_F(FormCandWindowTest, AnInterviewTypedSlowlyWaitsForItsDate) {
  SaveRow(QStringLiteral("Maçon"));
  auto* interview = Find<QLineEdit>("DateRDV");
  Type("DateRDV", QStringLiteral("24"));
  Find<QLineEdit>("Societe")->setText(QStringLiteral("ACME"));
  Window().Tick3000();
  EXPECT_EQ(interview->text(), QStringLiteral("24"));
  EXPECT_EQ(Read(1).Societe, u"ACME") << "the rest is saved";
  TypeKeys(interview, QStringLiteral("/11/2026 14:30"));
  Find("Remarques")->setFocus();
  EXPECT_EQ(dialogs.told, (std::vector<Text>{Text{messages::BadDate}}));
  EXPECT_TRUE(interview->property("invalid").toBool());
  interview->setText(QStringLiteral("24/11/2026"));
  Window().Tick3000();
  EXPECT_EQ(Read(1).DateRDV, u"24/11/2026");

  interview->setText(QStringLiteral("mardi"));
  Click("Action0");
  EXPECT_EQ(interview->text(), QString());
  EXPECT_TRUE(failures.empty());
}

TEST_F(FormCandWindowTest, ADeleteOnAStaleHandleIsReportedAndThePopupDeletes) {
  SaveRow(QStringLiteral("Maçon"));
  Click("Action1");
  ASSERT_EQ(failures.size(), 1u) << "the list of the save has closed the handle";
  EXPECT_EQ(Count(), 1);

  QString popup;
  ClickLeaf(u"s1", Qt::RightButton);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  for (const QAction* action : menu->actions())
    if (action->isEnabled() && !action->isSeparator()) popup += action->text() + QLatin1Char('|');
  EXPECT_EQ(popup, QStringLiteral("Consulter l'offre sur &Internet|Consulter le site d'&origine|&Postuler|"
                                  "I&mprimer|&Supprimer|"));
  menu->setActiveAction(menu->findChild<QAction*>(QStringLiteral("MenuSupprimerCand")));
  QTest::keyClick(menu, Qt::Key_Return);
  EXPECT_EQ(Count(), 0);
  EXPECT_TRUE(Rows().isEmpty());
  EXPECT_TRUE(Line("Intitule").isEmpty());
  EXPECT_EQ(failures.size(), 1u);
}

TEST_F(FormCandWindowTest, TheKeyboardAloneDoesTheSameWork) {
  auto* window = &desktop->Main();
  Find("Intitule")->setFocus();
  TypeKeys(QApplication::focusWidget(), QStringLiteral("Maçon"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), Find("Nature")) << "the order of reading";
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  auto* contracts = Find<QListWidget>("ListeContrats");
  ASSERT_TRUE(contracts->isVisible());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(contracts->isVisible());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(Line("Nature"), QStringLiteral("CDD,CONTRAT A DUREE DETERMINEE"));
  QTest::keyClick(window, Qt::Key_V, Qt::AltModifier);
  // A mnemonic presses its button for a moment before the click.
  ASSERT_TRUE(WaitFor([&] { return Count() == 1; }, Patience));

  QTest::keyClick(window, Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(WaitFor([&] { return Line("Intitule").isEmpty(); }, Patience));
  Tree().setFocus();
  QTest::keyClick(&Tree(), Qt::Key_Home);
  QTest::keyClick(&Tree(), Qt::Key_Down);
  QTest::keyClick(&Tree(), Qt::Key_Return);
  EXPECT_EQ(Line("Intitule"), QStringLiteral("Maçon"));
  QTest::keyClick(window, Qt::Key_C, Qt::AltModifier);
  EXPECT_TRUE(WaitFor([&] { return Rows()[0] == QStringLiteral("N.C."); }, Patience)) << "sorted by company";
  Tree().setFocus();
  QTest::keyClick(&Tree(), Qt::Key_Delete);
  EXPECT_EQ(Count(), 0);
}

TEST_F(FormCandWindowTest, TheBrowserPaneComesAndGoesWithTheModel) {
  SaveRow(QStringLiteral("Maçon"));
  auto* pane = Find("CadreWeb");
  EXPECT_FALSE(pane->isVisible());
  desktop->Model().AdresseWeb = u"data:text/html,<p>offre</p>";
  Click("Action4");
  EXPECT_TRUE(pane->isVisible());
  EXPECT_TRUE(Find<QPushButton>("Action4")->isChecked());
  EXPECT_EQ(Line("AdresseWeb"), ToQt(desktop->Model().AdresseWeb));
  EXPECT_TRUE(
      WaitFor([&] { return Find<QWebEngineView>("WebBrowser1")->url().scheme() == QStringLiteral("data"); },
              4 * Patience));
  ClickLeaf(u"s1");
  EXPECT_FALSE(pane->isVisible()) << "a row opened hides the pane";
}

TEST_F(FormCandWindowTest, TheStartPageNeedsNoNetworkAndListsTheSites) {
  Click("Action4");
  auto* view = Find<QWebEngineView>("WebBrowser1");
  QString text;
  EXPECT_TRUE(WaitFor(
      [&] {
        view->page()->toPlainText([&](const QString& answer) { text = answer; });
        Wait(50);
        return text.contains(QStringLiteral("Sites d’emploi")) &&
               text.contains(QStringLiteral("YAKE OFREMPLOI"));
      },
      4 * Patience))
      << text.toStdString();
}

}  // namespace
}  // namespace talvor
