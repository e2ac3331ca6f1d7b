// The whole program over a scratch data folder: real windows, real database, fake date and boxes.
#pragma once

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest/QTest>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "app/installation.h"
#include "desktop/application.h"
#include "desktop/desks/candidature_desk.h"
#include "desktop/desktop.h"
#include "desktop/shell/main_window.h"
#include "desktop/widgets/text_edge.h"
#include "tests/desktop/waiting.h"
#include "tests/fakes/fakes.h"
#include "tests/fakes/file_fakes.h"
#include "tests/fakes/scratch_folder.h"

namespace talvor {

// Types a text, letters with accents included.
inline void TypeKeys(QWidget* widget, const QString& text) {
  for (const QChar c : text) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
    QApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, QString(c));
    QApplication::sendEvent(widget, &release);
  }
}

class DesktopTest : public testing::Test {
 protected:
  DesktopTest() {
    environment.values[u"AppData"] = *FromUtf8(scratch.Path().string());
    InstallerDossier(scratch.Path() / "Talvor", {});
    // The browser keeps its own folders there.
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString((scratch.Path() / "navigateur").string()));
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString((scratch.Path() / "config").string()));
    qputenv("XDG_CACHE_HOME", QByteArray::fromStdString((scratch.Path() / "cache").string()));
    theme.Apply(Theme::Palette::Light);
    Restart();
  }
  ~DesktopTest() override {
    desktop.reset();
    App().OnFailure = {};
  }

  static Application& App() { return *static_cast<Application*>(qApp); }

  // The program is closed and started again.
  void Restart() {
    desktop.reset();
    desktop = std::make_unique<Desktop>(theme, environment, clock, dialogs, &pickers);
    App().OnFailure = [this](const std::string& report) { failures.push_back(report); };
    ASSERT_TRUE(desktop->StartAtOnce());
    // The screen of the tests is smaller than the window.
    desktop->Main().resize(1280, 800);
    desktop->Windows().Show(u"FormCand");
    Activate(desktop->Main());
  }

  template <class Widget = QWidget>
  Widget* Find(const char* name) {
    auto* found = desktop->Main().findChild<Widget*>(QString::fromUtf8(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  QString Line(const char* name) { return Find<QLineEdit>(name)->text(); }
  void Type(const char* name, const QString& text) {
    auto* field = Find(name);
    field->setFocus();
    TypeKeys(field, text);
  }
  void Click(const char* name) { QTest::mouseClick(Find(name), Qt::LeftButton); }

  FormCandWindow& Window() { return *desktop->Candidatures().Window(); }
  CandidatureTreeView& Tree() { return Window().List().Tree(); }

  // The tree as it is shown, a leaf one step in.
  QStringList Rows() {
    QStringList rows;
    const auto& model = Tree().Model();
    for (int g = 0; g < model.rowCount(); ++g) {
      const QModelIndex group = model.index(g, 0);
      rows.append(group.data().toString());
      for (int i = 0; i < model.rowCount(group); ++i)
        rows.append(QStringLiteral("  ") + model.index(i, 0, group).data().toString());
    }
    return rows;
  }
  void ClickLeaf(const Text& key, Qt::MouseButton button = Qt::LeftButton) {
    const QModelIndex index = Tree().Model().IndexOf(key);
    ASSERT_TRUE(index.isValid());
    Tree().scrollTo(index);
    QTest::mouseClick(Tree().viewport(), button, {}, Tree().visualRect(index).center());
  }

  Candidature Read(std::int32_t num) { return Database::Open(clock).ReadRow(num); }
  std::int64_t Count() { return Database::Open(clock).CountRows(); }

  // Saves a row through the window.
  void SaveRow(const QString& title) {
    Click("Action0");
    Type("Intitule", title);
    Click("Action3");
  }

  ScratchFolder scratch;
  FakeEnvironment environment;
  FakeClock clock{{2026, 3, 1}};
  FakeDialogs dialogs;
  FakePickers pickers;
  Theme theme;
  std::vector<std::string> failures;
  std::unique_ptr<Desktop> desktop;
};

}  // namespace talvor
