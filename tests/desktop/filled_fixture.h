// The program over a data folder with documents, for the tests that visit every window.
#pragma once

#include <QAbstractButton>
#include <filesystem>
#include <fstream>

#include "base/code_page.h"
#include "base/line_file.h"
#include "tests/desktop/desktop_fixture.h"

namespace talvor {

class FilledDesktopTest : public DesktopTest {
 protected:
  FilledDesktopTest() {
    environment.values[u"userprofile"] = environment.values[u"temp"] = *TextOf(scratch.Path());
    std::filesystem::create_directory(scratch.Path() / "Documents");
    for (const auto& entry : std::filesystem::directory_iterator{TALVOR_DATA_FOLDER "/Modeles"})
      std::filesystem::copy_file(entry.path(), std::filesystem::path("Modeles") / entry.path().filename());
    std::filesystem::copy_file(TALVOR_TEST_DATA "/cv/riche.dat", "CV/Riche.dat");
    std::ofstream("CV/Anglais.dat") << "Nom=Roy\r\n";
    std::ofstream("Lettres/Annonce (ER).dat", std::ios::binary)
        << ToCodePage(u"Text1=Bonjour\r\nNom=Roy\r\nPrénom=Zoé\r\nEmail=zoe@mail.example\r\n");
    std::ofstream("Lettres/Annonce (IR).dat") << "Text1=Bonjour\r\nNom=Roy\r\n";
    Restart();
    SaveRow(QStringLiteral("Maçon"));
  }

  QWidget* Main() { return &desktop->Main(); }
  QWidget* Open(TextView form) {
    desktop->Windows().Show(form);
    return desktop->Windows().WindowOf(form);
  }
  void ChooseRow(const char16_t* title) {
    for (auto* button : Main()->findChildren<QAbstractButton*>())
      if (button->isVisible() && button->accessibleName() == QString::fromUtf16(title))
        return button->click();
    FAIL() << ToUtf8(title);
  }
  bool PageStands() {
    constexpr int Patience = 20000;  // milliseconds
    return WaitFor([&] { return desktop->Candidatures().Pages().ReadyState() == DocumentBrowser::Complete; },
                   Patience);
  }
};

}  // namespace talvor
