// Every window of the program without a mouse and without eyes: names, the way of the Tab key, mnemonics.

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QTextBrowser>
#include <QToolButton>
#include <QWebEngineView>
#include <algorithm>
#include <fstream>
#include <string>

#include "desktop/desks/cv_desk.h"
#include "desktop/desks/letter_desk.h"
#include "desktop/desks/report_desk.h"
#include "desktop/shell/user_guide.h"
#include "tests/desktop/filled_fixture.h"

namespace talvor {
namespace {

std::string Told(const QWidget& widget) {
  return std::string(widget.metaObject()->className()) + " \"" + widget.objectName().toStdString() + "\"";
}

// What a screen reader says of a widget.
QString SpokenName(QWidget& widget) {
  // The name of a choice is not what is chosen.
  if (const auto* choice = qobject_cast<QComboBox*>(&widget)) return choice->accessibleName();
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
  return spoken == nullptr ? QString() : spoken->text(QAccessible::Name);
}

bool SaysSomething(const QString& name) {
  return std::any_of(name.begin(), name.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

bool InPage(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget())
    if (qobject_cast<const QWebEngineView*>(widget) != nullptr) return true;
  return false;
}

// A part of another widget, which has the name and the focus for both.
bool IsPart(const QWidget& widget) {
  const QWidget* whole = widget.parentWidget();
  return widget.focusProxy() != nullptr || InPage(whole) ||
         qobject_cast<const QComboBox*>(whole) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(whole) != nullptr ||
         qobject_cast<const QAbstractItemView*>(whole) != nullptr;
}

// What the user acts on: by the Tab key, or by the arrows inside a group. A page counts as one.
bool IsControl(const QWidget& widget) {
  if (!widget.isVisible()) return false;
  if (qobject_cast<const QWebEngineView*>(&widget) != nullptr) return true;
  if (IsPart(widget) || widget.focusPolicy() == Qt::NoFocus) return false;
  return (widget.focusPolicy() & Qt::TabFocus) || qobject_cast<const QAbstractButton*>(&widget) != nullptr;
}

QWidgetList WidgetsOf(QWidget& window) {
  QWidgetList own;
  for (QWidget* widget : window.findChildren<QWidget*>())
    if (widget->window() == &window) own.append(widget);
  return own;
}

QWidgetList ControlsOf(QWidget& window) {
  QWidgetList controls;
  for (QWidget* widget : WidgetsOf(window))
    if (IsControl(*widget)) controls.append(widget);
  return controls;
}

// Presses Tab on what has the focus. A page passes the focus on in its own time, and like a document after
// its own links.
QWidget* PressTab() {
  constexpr int MostLinks = 100;
  constexpr int UntilPagePassesOn = 500;  // milliseconds
  QWidget* from = QApplication::focusWidget();
  const bool page = InPage(from);
  const bool document = qobject_cast<QTextBrowser*>(from) != nullptr;
  const auto left = [&] {
    QWidget* now = QApplication::focusWidget();
    return page ? !InPage(now) : now != from;
  };
  for (int i = 0; i < (page || document ? MostLinks : 1); ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    if (page ? WaitFor(left, UntilPagePassesOn) : left()) break;
  }
  return QApplication::focusWidget();
}

// The widgets at which Tab stops, on its way round the window.
QSet<QWidget*> TabStops(QWidget& window) {
  QSet<QWidget*> stops;
  QWidget* at = window.focusWidget();
  if (at == nullptr || !at->isVisible()) {
    QTest::keyClick(&window, Qt::Key_Tab);
    at = QApplication::focusWidget();
  }
  while (at != nullptr && !stops.contains(at)) {
    stops.insert(at);
    at->setFocus();
    at = PressTab();
  }
  return stops;
}

// One of several of which one is chosen: an arrow would choose another.
bool IsChoice(const QAbstractButton& button) {
  return button.autoExclusive() || (button.group() != nullptr && button.group()->exclusive());
}

// Adds the buttons that the arrow keys reach from those stops, such as the slots of a tray.
void AddRoving(QSet<QWidget*>& reached) {
  QWidgetList open = reached.values();
  while (!open.isEmpty()) {
    QWidget* from = open.takeFirst();
    const auto* button = qobject_cast<QAbstractButton*>(from);
    if (button == nullptr || IsChoice(*button)) continue;
    for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
      from->setFocus();
      QTest::keyClick(from, arrow);
      QWidget* to = QApplication::focusWidget();
      if (to == nullptr || reached.contains(to)) continue;
      reached.insert(to);
      open.append(to);
    }
  }
}

class AccessibilityTest : public FilledDesktopTest {
 protected:
  // Walks a window as it stands; `state` tells which.
  void Walk(QWidget* window, const char* state) {
    SCOPED_TRACE(state);
    ASSERT_NE(window, nullptr);
    ASSERT_TRUE(window->isVisible());
    QApplication::processEvents();
    Activate(*window);
    const QWidgetList controls = ControlsOf(*window);
    EXPECT_FALSE(controls.isEmpty());
    for (QWidget* control : controls)
      EXPECT_TRUE(SaysSomething(SpokenName(*control))) << Told(*control) << " has no name";
    ExpectOwnMnemonics(*window);
    ExpectReached(*window);
  }

  void ExpectReached(QWidget& window) {
    QSet<QWidget*> reached = TabStops(window);
    AddRoving(reached);
    for (QWidget* control : ControlsOf(window)) {
      const bool held = std::any_of(reached.begin(), reached.end(), [&](const QWidget* stop) {
        return stop == control || (InPage(stop) && control->isAncestorOf(stop));
      });
      EXPECT_TRUE(held || !control->isEnabled() || IsChosenByArrow(*control, reached))
          << Told(*control) << ' ' << SpokenName(*control).toStdString() << " is not reached";
    }
  }

  // One of a choice of which another has been reached.
  static bool IsChosenByArrow(const QWidget& control, const QSet<QWidget*>& reached) {
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    if (button == nullptr || !IsChoice(*button)) return false;
    return std::any_of(reached.begin(), reached.end(), [&](const QWidget* stop) {
      const auto* other = qobject_cast<const QAbstractButton*>(stop);
      return other != nullptr && IsChoice(*other) && other->group() == button->group() &&
             other->parentWidget() == button->parentWidget();
    });
  }

  static void ExpectOwnMnemonics(QWidget& window) {
    QHash<QKeySequence, QString> owners;
    const auto take = [&](const QKeySequence& keys, const QString& owner) {
      if (keys.isEmpty()) return;
      EXPECT_FALSE(owners.contains(keys)) << keys.toString().toStdString() << ": "
                                          << owners[keys].toStdString() << " and " << owner.toStdString();
      owners.insert(keys, owner);
    };
    for (QWidget* widget : WidgetsOf(window)) {
      if (!widget->isVisible()) continue;
      if (const auto* button = qobject_cast<QAbstractButton*>(widget))
        take(button->shortcut(), button->text());
      if (const auto* label = qobject_cast<QLabel*>(widget); label && label->buddy())
        take(QKeySequence::mnemonic(label->text()), label->text());
    }
    for (const QShortcut* shortcut : window.findChildren<QShortcut*>()) {
      const auto* place = qobject_cast<QWidget*>(shortcut->parent());
      if (place == nullptr || place->window() != &window || !place->isVisible()) continue;
      if (shortcut->context() == Qt::WindowShortcut) take(shortcut->key(), shortcut->key().toString());
    }
  }
};

TEST_F(AccessibilityTest, TheHomePanelWithEachOfItsLevels) {
  Click("Label2");
  Walk(Main(), "first level");
  for (const char16_t* title :
       {u"Rédiger un Curriculum Vitae", u"Rédiger un modèle de lettre", u"Gérer les candidatures"}) {
    ChooseRow(title);
    Wait(300);
    Walk(Main(), ToUtf8(title).c_str());
    ChooseRow(u"Retour au menu principal");
  }
}

TEST_F(AccessibilityTest, TheCandidaturesWithAndWithoutTheBrowser) {
  Walk(Main(), "a new candidature");
  ClickLeaf(u"s1");
  Walk(Main(), "a saved candidature");
  std::ofstream("Listesites.txt", std::ios::binary)
      << "ACME   http://a.example/\r\nAUTRE   http://b.example/\r\n";
  desktop->Model().AdresseWeb = u"data:text/html,<p>offre de contrat, lieu et salaire du poste</p>";
  Click("Action4");
  ASSERT_TRUE(PageStands());
  desktop->Candidatures().Web().BringLinkVisible = true;
  Window().Refresh();
  Walk(Main(), "with the browser");
  Window().Do([&] { desktop->Candidatures().Pages().Navigate(u"file:///"); });
  ASSERT_TRUE(Find("AvisPage")->isVisible());
  Walk(Main(), "with a notice");
}

TEST_F(AccessibilityTest, TheEditorOfCvsWithEachOfItsPanels) {
  desktop->Windows().Unload(u"FormCand");
  desktop->Cv().OpenNew();
  Walk(Main(), "a new CV");
  desktop->Cv().OpenFile(u"Riche.dat");
  Walk(Main(), "a CV");
  for (const char* entry : {"Entree0", "Entree1"}) {
    Click(entry);
    Walk(Main(), entry);
  }
  desktop->Cv().Window()->Do([&] { desktop->Cv().Form().OpenTemplates(); });
  Walk(Main(), "templates");
  desktop->Cv().Window()->Do([&] { desktop->Cv().Form().OpenFonts(); });
  Walk(Main(), "fonts");
  desktop->Cv().Window()->Do([&] { desktop->Cv().Form().ShowHelpOf(14); });
  Walk(Main(), "with help");
}

TEST_F(AccessibilityTest, TheLetterPrintedAndByMail) {
  desktop->Windows().Unload(u"FormCand");
  desktop->Windows().Show(LetterForm);
  FormLettre& letter = desktop->Letters().Form();
  LetterWindow& window = *desktop->Letters().Window();
  window.Do([&] {
    letter.ChargerFichierLettre("Lettres/Annonce (ER).dat");
    letter.CvListVisible = true;
  });
  for (const std::size_t kind : {Printed, Mail}) {
    window.Do([&] { letter.ToggleMedium(kind); });
    Walk(Main(), "letter");
  }
  window.Do([&] { letter.saveFailed = true; });
  Walk(Main(), "a letter that could not be saved");
}

TEST_F(AccessibilityTest, TheWindowsOverTheMainOne) {
  ClickLeaf(u"s1");
  std::ofstream(scratch.Path() / "Documents" / "cv.pdf") << "x";
  QWidget* apply = Open(ApplyForm);
  Walk(apply, "apply");
  QTest::mouseClick(apply->findChild<QWidget*>(QStringLiteral("Parcourir")), Qt::LeftButton);
  Walk(apply, "apply with the list of CVs");
  desktop->Windows().Unload(ApplyForm);
  Walk(Open(u"FormStat"), "statistics");
  desktop->Windows().Unload(u"FormStat");
  Walk(Open(u"FormLoadSave"), "backup");
  desktop->Windows().Unload(u"FormLoadSave");
  Walk(Open(PrintAdviceForm), "page advice");
  desktop->Windows().Unload(PrintAdviceForm);
  Walk(Open(u"APropos"), "about");
  desktop->Windows().Unload(u"APropos");
  Walk(Open(UserGuideForm), "guide");
  desktop->Windows().Unload(UserGuideForm);
  Click("Image7");
  Walk(desktop->Reports().Preview().Window(), "print preview");
  desktop->Reports().Preview().Window()->close();
  desktop->Cv().OpenFile(u"Riche.dat");
  Walk(Open(ConvertForm), "conversion");
}

TEST_F(AccessibilityTest, TheEntriesOfEveryMenuHaveTheirOwnMnemonic) {
  desktop->Cv().OpenFile(u"Riche.dat");
  int menus = 0;
  for (QWidget* widget : QApplication::allWidgets()) {
    const auto* menu = qobject_cast<QMenu*>(widget);
    if (menu == nullptr || menu->actions().isEmpty()) continue;
    ++menus;
    QHash<QKeySequence, QString> owners;
    for (const QAction* action : menu->actions()) {
      if (action->isSeparator()) continue;
      EXPECT_TRUE(SaysSomething(action->text())) << menu->objectName().toStdString();
      const QKeySequence keys = QKeySequence::mnemonic(action->text());
      EXPECT_FALSE(keys.isEmpty()) << action->text().toStdString() << " has none";
      EXPECT_FALSE(owners.contains(keys))
          << menu->objectName().toStdString() << ": " << owners[keys].toStdString() << " and "
          << action->text().toStdString();
      owners.insert(keys, action->text());
    }
  }
  EXPECT_GE(menus, 7);
}

}  // namespace
}  // namespace talvor
