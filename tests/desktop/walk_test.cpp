// From the home panel to every function of the program and back, by mouse and by keyboard.

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QPushButton>
#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "base/line_file.h"
#include "desktop/desks/backup_desk.h"
#include "desktop/desks/cv_desk.h"
#include "desktop/desks/letter_desk.h"
#include "desktop/desks/report_desk.h"
#include "desktop/shell/backup_window.h"
#include "desktop/shell/home_window.h"
#include "tests/desktop/desktop_fixture.h"

namespace talvor {
namespace {

constexpr int Patience = 5000;  // milliseconds

class WalkTest : public DesktopTest {
 protected:
  WalkTest() {
    environment.values[u"userprofile"] = environment.values[u"homepath"] = *TextOf(scratch.Path());
    Write("CV/a.dat", "Nom=Marchand\r\n");
    Write("CV/b.pdf", "x");
    Write("Lettres/l (ER).dat", "NomLettre=l (ER)\r\nText1=Bonjour\r\n");
    Restart();
    SaveRow(QStringLiteral("Maçon"));
    Home();
  }

  std::filesystem::path Folder() const { return scratch.Path() / "Talvor"; }
  void Write(const char* name, std::string_view bytes) {
    std::ofstream(Folder() / name, std::ios::binary) << bytes;
  }
  bool Stands(const char* name) const { return std::filesystem::exists(Folder() / name); }
  bool Visible(TextView form) { return desktop->Windows().FormeVisible(form); }
  IconTile& Slot(std::size_t slot) { return desktop->Main().Header().Slot(slot); }

  // Back to the home panel, as "Menu" does it from any other form.
  void Home() {
    if (!Visible(u"AssistantTexte") || desktop->Main().Pages()->currentWidget() != HomePage())
      Click("Label2");
    ASSERT_EQ(desktop->Main().Pages()->currentWidget(), HomePage());
  }
  QWidget* HomePage() { return desktop->Windows().WindowOf(u"AssistantTexte"); }

  HomeRowButton* Row(const char16_t* title) {
    for (auto* button : desktop->Main().findChildren<QAbstractButton*>())
      if (auto* row = dynamic_cast<HomeRowButton*>(button);
          row && row->isVisible() && row->Row().title == title)
        return row;
    return nullptr;
  }
  void Choose(const std::vector<const char16_t*>& titles, bool byKeyboard) {
    for (const char16_t* title : titles) {
      HomeRowButton* row = Row(title);
      ASSERT_NE(row, nullptr) << ToUtf8(title);
      row->setFocus();
      if (byKeyboard)
        QTest::keyClick(row, Qt::Key_Return);
      else
        QTest::mouseClick(row, Qt::LeftButton);
    }
  }
  // The menu that opens under a slot.
  QMenu* OpenMenu(std::size_t slot, bool byKeyboard) {
    Slot(slot).setFocus();
    // A menu takes no click as long as Qt has never heard of the pointer.
    QTest::mouseMove(desktop->Main().windowHandle(), QPoint(1, 1));
    if (byKeyboard)
      QTest::keyClick(&Slot(slot), Qt::Key_Space);
    else
      QTest::mouseClick(&Slot(slot), Qt::LeftButton);
    const auto open = [] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); };
    EXPECT_TRUE(WaitFor([&] { return open() != nullptr; }, Patience));
    return open();
  }
  void ChooseItem(std::size_t slot, const char16_t* item, bool byKeyboard = false) {
    QMenu* menu = OpenMenu(slot, byKeyboard);
    ASSERT_NE(menu, nullptr);
    auto* action = menu->findChild<QAction*>(QString::fromUtf16(item));
    ASSERT_NE(action, nullptr) << ToUtf8(item);
    ASSERT_TRUE(action->isEnabled()) << ToUtf8(item);
    menu->setActiveAction(action);
    if (byKeyboard)
      QTest::keyClick(menu, Qt::Key_Return);
    else
      QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
  }
  QDialog* Window(TextView form) { return qobject_cast<QDialog*>(desktop->Windows().WindowOf(form)); }
};

TEST_F(WalkTest, TheHomePanelLeadsEverywhereAndBack) {
  struct Way {
    std::vector<const char16_t*> titles;
    TextView form;
  };
  const std::array<Way, 9> ways{{
      {{u"Rédiger un Curriculum Vitae", u"Réaliser un nouveau CV"}, u"FormRédigerCV"},
      {{u"Rédiger un Curriculum Vitae", u"a"}, u"FormRédigerCV"},
      {{u"Rédiger un Curriculum Vitae", u"Retour au menu principal"}, u"AssistantTexte"},
      {{u"Rédiger un modèle de lettre", u"Réaliser un nouveau modèle de lettre"}, u"FormLettre"},
      {{u"Rédiger un modèle de lettre", u"l (ER)"}, u"FormLettre"},
      {{u"Gérer les candidatures", u"Gestion manuelle des candidatures"}, u"FormCand"},
      {{u"Gérer les candidatures", u"Recherche des offres sur Internet"}, u"FormCand"},
      {{u"Gérer les candidatures", u"Retour au menu principal"}, u"AssistantTexte"},
      {{u"Statistiques, calendrier et alertes"}, u"FormStat"},
  }};
  for (const bool byKeyboard : {false, true})
    for (const Way& way : ways) {
      Choose(way.titles, byKeyboard);
      EXPECT_TRUE(Visible(way.form)) << ToUtf8(way.form);
      if (QDialog* window = Window(way.form)) window->close();
      Home();
      EXPECT_NE(Row(u"Rédiger un Curriculum Vitae"), nullptr);
    }
  for (const bool byKeyboard : {false, true}) {
    Choose({u"Gérer les candidatures", u"Justificatif de recherche d'emploi"}, byKeyboard);
    ASSERT_TRUE(WaitFor([&] { return desktop->Reports().Preview().Window() != nullptr; }, Patience));
    desktop->Reports().Preview().Window()->close();
    Choose({u"Retour au menu principal"}, byKeyboard);
  }
  pickers.file = scratch.Path() / "attaché.rtf";
  std::ofstream(*pickers.file) << "x";
  Choose({u"Rédiger un Curriculum Vitae", u"Rattacher un CV existant"}, true);
  EXPECT_TRUE(Stands("CV/attaché.rtf"));
  EXPECT_EQ(Slot(1).Shown().icon, QStringLiteral("cv-word"));
  EXPECT_TRUE(failures.empty());
}

TEST_F(WalkTest, TheMenusOfTheSlotsDoTheirWork) {
  dialogs.answer = false;  // no letter out of the CV
  for (const bool byKeyboard : {false, true}) {
    ChooseItem(0, u"MenuOuvrirCV", byKeyboard);
    EXPECT_TRUE(Visible(u"FormRédigerCV"));
    EXPECT_EQ(desktop->Cv().Form().Nom, u"Marchand");
    EXPECT_TRUE(Slot(0).Shown().current);
    EXPECT_FALSE(Slot(1).Shown().current);
    Home();
    ChooseItem(5, u"MenuOuvrirLettre", byKeyboard);
    EXPECT_TRUE(Visible(u"FormLettre"));
    EXPECT_TRUE(Slot(5).Shown().current);
    Home();
    ChooseItem(10, u"MenuOuvrirCand", byKeyboard);
    EXPECT_TRUE(Visible(u"FormCand"));
    Home();
    ChooseItem(10, u"MenuRechercherOffres", byKeyboard);
    EXPECT_TRUE(desktop->Candidatures().Form().WebPaneVisible);
    Home();
    ChooseItem(2, u"MenuNouveauCV", byKeyboard);
    EXPECT_TRUE(Visible(u"FormRédigerCV"));
    Home();
    ChooseItem(6, u"MenuRédigerLettre", byKeyboard);
    EXPECT_TRUE(Visible(u"FormLettre"));
    Home();
  }
  dialogs.answer = true;
  ChooseItem(0, u"MenuDupliquerCV");
  EXPECT_TRUE(Stands("CV/Copie de a.dat"));
  EXPECT_EQ(Slot(2).accessibleName(), QStringLiteral("Copie de a.dat"));
  pickers.file = Folder() / "CV" / "z";
  ChooseItem(0, u"Renommer");
  EXPECT_TRUE(Stands("CV/z.dat"));
  EXPECT_TRUE(Find<QLabel>("Information")->text().isEmpty());
  ChooseItem(5, u"MenuDuppliquerLettre");
  EXPECT_TRUE(Stands("Lettres/Copie de l (ER).dat"));
  ChooseItem(5, u"MenuSupprimerLettre");
  EXPECT_FALSE(Stands("Lettres/Copie de l (ER).dat"));
  ChooseItem(10, u"MenuImprimerListe");
  ASSERT_TRUE(WaitFor([&] { return desktop->Reports().Preview().Window() != nullptr; }, Patience));
  desktop->Reports().Preview().Window()->close();
  ChooseItem(10, u"MenuSupprimer");
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(Slot(10).Shown().icon, QStringLiteral("new"));
  EXPECT_TRUE(failures.empty());
}

TEST_F(WalkTest, ThePopupOfACandidatureLeadsToItsPageItsSiteAndTheApplication) {
  Choose({u"Gérer les candidatures", u"Gestion manuelle des candidatures"}, false);
  ClickLeaf(u"s1");
  desktop->Candidatures().Form().www = u"http://emploi.example/offres/4821";
  const auto choose = [&](const char16_t* item) {
    Tree().setFocus();
    QTest::keyClick(&Tree(), Qt::Key_F10, Qt::ShiftModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    menu->setActiveAction(menu->findChild<QAction*>(QString::fromUtf16(item)));
    desktop->Candidatures().Form().www = u"http://emploi.example/offres/4821";
    QTest::keyClick(menu, Qt::Key_Return);
  };
  choose(u"MenuConsulterInternet");
  EXPECT_TRUE(desktop->Candidatures().Form().WebPaneVisible);
  EXPECT_EQ(desktop->Candidatures().Form().AdresseWeb, u"http://emploi.example/offres/4821");
  // The end of a load writes its own address into the field.
  ASSERT_TRUE(WaitFor(
      [&] { return desktop->Candidatures().Pages().ReadyState() == DocumentBrowser::Complete; }, Patience));
  Wait(50);
  choose(u"MenuConsulterOrigine");
  EXPECT_EQ(desktop->Candidatures().Form().AdresseWeb, u"http://emploi.example");
  choose(u"MenuPostuler");
  EXPECT_TRUE(Visible(u"FormPostuler"));
  desktop->Windows().Unload(u"FormPostuler");
  choose(u"MenuImprimerCand");
  EXPECT_EQ(Count(), 1);
  EXPECT_TRUE(failures.empty());
}

TEST_F(WalkTest, ASlotTellsAClickFromADoubleClickAndHasKeysOfItsOwn) {
  QTest::mouseClick(&Slot(0), Qt::LeftButton);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "a second click may follow";
  QTest::mouseDClick(&Slot(0), Qt::LeftButton);
  EXPECT_TRUE(Visible(u"FormRédigerCV"));
  Wait(QApplication::doubleClickInterval());
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);

  Home();
  Slot(1).setFocus();
  pickers.file = Folder() / "CV" / "portfolio";
  QTest::keyClick(&Slot(1), Qt::Key_F2);
  EXPECT_TRUE(Stands("CV/portfolio.pdf"));
  QTest::keyClick(&Slot(1), Qt::Key_Delete);
  EXPECT_FALSE(Stands("CV/portfolio.pdf"));
  EXPECT_EQ(dialogs.asked.back(), u"Confirmez-vous la suppression du CV : portfolio.pdf ?");
  const std::size_t asked = dialogs.asked.size();
  QTest::keyClick(&Slot(10), Qt::Key_Delete);
  QTest::keyClick(&Slot(6), Qt::Key_Delete);
  EXPECT_EQ(dialogs.asked.size(), asked) << "a free slot has nothing to delete";

  QTest::keyClick(&desktop->Main(), Qt::Key_6, Qt::ControlModifier);
  EXPECT_TRUE(WaitFor([&] { return Visible(u"FormLettre"); }, Patience));
}

TEST_F(WalkTest, ARefusedRenamingIsReportedAndTheTypedLetterIsOnTheDisk) {
  ChooseItem(5, u"MenuOuvrirLettre");
  desktop->Letters().Form().Nom = u"Marchand";
  desktop->Letters().Form().Text1 = u"Bonjour et merci";
  pickers.file = Folder() / "absent" / "m";
  ChooseItem(5, u"RenommerLettre");
  ASSERT_EQ(failures.size(), 1u);
  EXPECT_NE(failures[0].find("l (ER).dat"), std::string::npos) << failures[0];
  EXPECT_NE(ReadBytes(Folder() / "Lettres" / "l (ER).dat")->find("Bonjour et merci"), std::string::npos);
}

TEST_F(WalkTest, ADatabaseThatFailsAtTheEndTakesNoTypedLetterWithIt) {
  desktop->Windows().Show(u"FormCand");
  SaveRow(QStringLiteral("Maçon"));
  ChooseItem(5, u"MenuOuvrirLettre");
  desktop->Letters().Form().Nom = u"Marchand";
  desktop->Letters().Form().Text1 = u"Bonjour et merci";
  desktop->Candidatures().Form().DateRDV = u"mardi";  // which the database refuses
  desktop->Main().close();
  EXPECT_EQ(failures.size(), 1u);
  EXPECT_NE(ReadBytes(Folder() / "Lettres" / "l (ER).dat")->find("Bonjour et merci"), std::string::npos);
}

TEST_F(WalkTest, TheDataGoesOutAndComesBackThroughTheWindowOfTheBackup) {
  const auto key = scratch.Path() / "clé";
  std::filesystem::create_directory(key);
  QTest::keyClick(&desktop->Main(), Qt::Key_U, Qt::AltModifier);
  ASSERT_TRUE(WaitFor([&] { return Visible(u"FormLoadSave"); }, Patience));
  pickers.file = key / "Talvor.mdb";
  QTest::mouseClick(Window(u"FormLoadSave")->findChild<QWidget*>(QStringLiteral("Sauver")), Qt::LeftButton);
  EXPECT_EQ(dialogs.told.back(), u"Sauvegarde effectuée");
  EXPECT_FALSE(Visible(u"FormLoadSave"));

  // A row that is open belongs to the data that goes; one that has no row yet does not.
  Choose({u"Gérer les candidatures", u"Gestion manuelle des candidatures"}, false);
  SaveRow(QStringLiteral("Plombier"));
  Click("Action0");
  Type("Ville", QStringLiteral("Lyon"));
  pickers.file = key / "Talvor" / "Talvor.mdb";
  Click("Label3");
  ASSERT_TRUE(Visible(u"FormLoadSave"));
  QTest::keyClick(Window(u"FormLoadSave")->findChild<QWidget*>(QStringLiteral("Charger")), Qt::Key_Return);
  EXPECT_EQ(dialogs.told.back(), u"Chargement effectué");
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(Rows().size(), 2) << "the list shows the data that came back";
  EXPECT_EQ(Line("Ville"), QStringLiteral("Lyon"));

  Click("Label3");
  QTest::keyClick(Window(u"FormLoadSave"), Qt::Key_Escape);
  EXPECT_FALSE(Visible(u"FormLoadSave"));
  EXPECT_TRUE(failures.empty());
}

TEST_F(WalkTest, ACopyShowsHowFarItIsAndIsStoppedFromItsWindow) {
  std::filesystem::create_directory(scratch.Path() / "clé");
  Click("Label3");
  pickers.file = scratch.Path() / "clé" / "Talvor.mdb";
  auto* window = static_cast<BackupWindow*>(Window(u"FormLoadSave"));
  bool seen = false;
  const auto shown = desktop->Backup().Form().OnProgress;
  desktop->Backup().Form().OnProgress = [&] {
    shown();
    if (seen || !desktop->Backup().Form().busy) return;
    seen = true;
    EXPECT_TRUE(window->findChild<QLabel*>(QStringLiteral("Avancement"))
                    ->text()
                    .contains(QStringLiteral("Copie\u00A0: 0 fichier sur")));
    EXPECT_FALSE(window->findChild<QWidget*>(QStringLiteral("Nouvel"))->isEnabled());
    window->close();
    EXPECT_TRUE(window->isVisible()) << "the window stays for the report";
  };
  QTest::mouseClick(window->findChild<QWidget*>(QStringLiteral("Sauver")), Qt::LeftButton);
  ASSERT_TRUE(seen);
  EXPECT_TRUE(Contains(dialogs.told.back(), u"interrompue")) << ToUtf8(dialogs.told.back());
  EXPECT_TRUE(std::filesystem::is_empty(scratch.Path() / "clé"));
  EXPECT_TRUE(window->findChild<QWidget*>(QStringLiteral("Nouvel"))->isEnabled());
}

TEST_F(WalkTest, TheSmallFormsOpenAndClose) {
  Click("Logo");
  ASSERT_TRUE(Visible(u"APropos"));
  QTest::keyClick(Window(u"APropos"), Qt::Key_Escape);
  EXPECT_FALSE(Visible(u"APropos"));

  ChooseItem(0, u"MenuOuvrirCV");
  Click("Entree3");
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  menu->close();
  menu->findChild<QAction*>(QStringLiteral("MessageTrames"))->trigger();
  ASSERT_TRUE(Visible(u"MiseEnPage"));
  const auto press = [&](const char16_t* button) {
    Window(u"MiseEnPage")->findChild<QPushButton*>(QString::fromUtf16(button))->click();
  };
  press(u"BoutonTLV1");
  EXPECT_EQ(dialogs.told.back(), MiseEnPage::ColoursAlwaysPrinted);
  press(u"BoutonTLV2");
  EXPECT_NE(desktop->Cv().PreviewWindow(), nullptr);
  press(u"BoutonTLV3");
  EXPECT_FALSE(Visible(u"MiseEnPage"));
}

TEST_F(WalkTest, TheAssistantStandsBesideTheHomePanelAndGivesWayToTheEditor) {
  EXPECT_TRUE(Visible(u"Assistant"));
  HomeRowButton* row = Row(u"Rédiger un Curriculum Vitae");
  Choose({u"Rédiger un Curriculum Vitae"}, false);
  Click("Label2");
  EXPECT_NE(Row(u"Réaliser un nouveau CV"), nullptr) << "beside the panel it keeps the menu from acting";
  EXPECT_TRUE(WaitFor([&] { return row->parentWidget()->layout()->contentsMargins().left() == 0; }, 500))
      << "the rows are in their place at once";
  Choose({u"Réaliser un nouveau CV"}, false);
  EXPECT_TRUE(WaitFor([&] { return desktop->Windows().WindowOf(u"Assistant") == nullptr; }, Patience));
}

}  // namespace
}  // namespace talvor
