#include <QAbstractButton>
#include <QLabel>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "desktop/desks/letter_desk.h"
#include "letters/merge.h"
#include "tests/desktop/desktop_fixture.h"

namespace talvor {
namespace {

constexpr int Patience = 5000;  // milliseconds

class LetterWindowTest : public DesktopTest {
 protected:
  LetterWindowTest() {
    std::ofstream(Folder() / "CV" / "Marchand Julie.dat", std::ios::binary)
        << "Nom=Marchand\r\nPr\xE9nom=Julie\r\nVille=Lyon\r\nCompetences=1:la r\xE9"
           "daction\r\n"
           "Email=julie@mail.example\r\n";
    std::ofstream sentences(Folder() / "propositions.txt", std::ios::binary);
    for (const char* line : {"1;Voici ma candidature.", "1;Au poste de #Intitule#, je serai pr\xEAt(e).",
                             "2;Je suis s\xE9rieu(x)(se).", "2;Je connais le m\xE9tier.",
                             "3;Je suis motiv\xE9(e).", "3;J'aime ce travail.", "4;Je suis disponible.",
                             "4;Rencontrons-nous.", "5;Salutations, #Titre#.", "5;Cordialement, #Titre#."})
      sentences << line << "\r\n";
    sentences.close();
    desktop->Model().InitMenu();
  }

  // A field of the letter: other forms have fields of the same name.
  template <class Widget = QWidget>
  Widget* Find(const char* name) {
    auto* found = desktop->Letters().Window()->findChild<Widget*>(QString::fromUtf8(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  QString Line(const char* name) { return Find<QLineEdit>(name)->text(); }
  void Type(const char* name, const QString& text) {
    Find(name)->setFocus();
    TypeKeys(Find(name), text);
  }
  void Click(const char* name) { QTest::mouseClick(Find(name), Qt::LeftButton); }

  std::filesystem::path Folder() const { return scratch.Path() / "Talvor"; }
  void OpenSlot(std::size_t slot) { desktop->Main().Header().OnSlotOpen(slot); }
  QPlainTextEdit* Letter() { return Find<QPlainTextEdit>("Text1"); }
  QString Sentence(int group) {
    return Find<QPlainTextEdit>(("Corps" + std::to_string(group)).c_str())->toPlainText();
  }
  std::string Saved(const char* name) const {
    std::ifstream file(Folder() / "Lettres" / name, std::ios::binary);
    return (std::ostringstream() << file.rdbuf()).str();
  }
  bool Waits(const std::function<bool()>& condition) { return WaitFor(condition, Patience); }
};

TEST_F(LetterWindowTest, ANewLetterFromACvIsWalkedThroughAndSavesItself) {
  OpenSlot(Principale::FirstLetterSlot);
  ASSERT_EQ(dialogs.asked.size(), 1u);
  EXPECT_TRUE(desktop->Letters().Window()->isVisible());
  EXPECT_EQ(Line("Nom"), QStringLiteral("Marchand"));
  EXPECT_TRUE(Line("Competences").isEmpty());
  EXPECT_FALSE(Find("ListeCV")->isVisible());
  EXPECT_TRUE(Find("CadreObjet")->isVisible()) << "a new model is a mail";
  EXPECT_EQ(Line("Objet"), QStringLiteral("En réponse à votre annonce référence #Reference#"));

  for (int group = 0; group < 5; ++group) {
    const QString before = Sentence(group);
    ASSERT_FALSE(before.isEmpty());
    Click(("BoutonTLV2_" + std::to_string(group)).c_str());
    EXPECT_NE(Sentence(group), before);
    EXPECT_TRUE(Letter()->toPlainText().contains(Sentence(group)));
  }
  EXPECT_EQ(Sentence(0), QStringLiteral("Au poste de #Intitule#, je serai prête."));
  const QString second = Sentence(1);
  Click("BoutonTLV1_1");
  EXPECT_NE(Sentence(1), second);
  QTest::keyClick(&desktop->Main(), Qt::Key_2, Qt::AltModifier);
  EXPECT_TRUE(Waits([&] { return Sentence(1) == second; })) << "the key of the second group";

  ASSERT_TRUE(Waits([&] { return !Saved("Julie Marchand (ER).dat").empty(); })) << "the timer saves";
  EXPECT_EQ(Line("NomLettre"), QStringLiteral("Julie Marchand (ER)"));
  EXPECT_EQ(desktop->Model().ImageMenu[Principale::FirstLetterSlot].toolTip, u"Julie Marchand (ER).dat");

  // The saved model becomes the letter for one candidature.
  desktop->Candidatures().Form().Intitule = u"Chargée de communication";
  desktop->Candidatures().Form().Reference = u"CI-114";
  FakeShell shell;
  MergedLetter merged;
  ASSERT_TRUE(FusionnerLettre(Folder() / "Lettres" / "Julie Marchand (ER).dat",
                              TextsOf(desktop->Candidatures().Form()), clock.today, merged, dialogs, shell));
  EXPECT_TRUE(Contains(merged.Texte, u"Chargée de communication")) << ToUtf8(merged.Texte);
  EXPECT_FALSE(Contains(merged.Texte, u"#")) << ToUtf8(merged.Texte);
  EXPECT_EQ(merged.Objet, u"En réponse à votre annonce référence CI-114");
  EXPECT_EQ(merged.Email, u"Julie Marchand<julie@mail.example>");

  QTest::mouseClick(Find("Check_Modele0"), Qt::LeftButton);
  EXPECT_FALSE(Find("CadreObjet")->isVisible());
  EXPECT_TRUE(Letter()->toPlainText().startsWith(QStringLiteral("Julie Marchand\n")));
  const QString printed = Letter()->toPlainText();
  QTest::mouseClick(Find("Check_Modele0"), Qt::LeftButton);
  EXPECT_EQ(Letter()->toPlainText(), printed) << "the segment that is chosen stays chosen";
  EXPECT_TRUE(Find<QAbstractButton>("Check_Modele0")->isChecked());
  EXPECT_TRUE(failures.empty());
}

TEST_F(LetterWindowTest, AHandEditIsKeptAndToldUntilTheNextComposition) {
  OpenSlot(Principale::FirstLetterSlot);
  auto* note = Find<QLabel>("NoteRetouche");
  const QString calm = note->text();
  QTextCursor caret = Letter()->textCursor();
  caret.movePosition(QTextCursor::End);
  Letter()->setTextCursor(caret);
  Letter()->setFocus();
  TypeKeys(Letter(), QStringLiteral("Retouchée"));
  EXPECT_NE(note->text(), calm) << "said before it is lost";
  caret = Letter()->textCursor();
  caret.movePosition(QTextCursor::Left, QTextCursor::MoveAnchor, 3);
  Letter()->setTextCursor(caret);
  const int place = caret.position();

  ASSERT_TRUE(Waits([&] {
    return Saved("Julie Marchand (ER).dat")
               .find(
                   "Retouch\xE9"
                   "e") != std::string::npos;
  }));
  EXPECT_EQ(Letter()->textCursor().position(), place) << "a save moves no caret";
  EXPECT_TRUE(Letter()->document()->isUndoAvailable());
  Type("Adresse1", QStringLiteral("7 rue des Lilas"));
  EXPECT_TRUE(Letter()->toPlainText().contains(QStringLiteral("Retouchée")));
  EXPECT_NE(note->text(), calm);

  Find("Email")->setFocus();
  Find("Pays")->setFocus();
  EXPECT_FALSE(Letter()->toPlainText().contains(QStringLiteral("Retouchée")));
  EXPECT_EQ(note->text(), calm);
  EXPECT_EQ(dialogs.asked.size(), 1u) << "no question but that of the CV";
}

TEST_F(LetterWindowTest, ASavedLetterOpensAgainAsItStood) {
  std::ofstream(Folder() / "Lettres" / "Modèle (IS).dat", std::ios::binary)
      << "Text1=Bonjour #Titre#<N>\xC0 la main\r\nNom=Durand\r\nNomLettre=Mod\xE8le (IS)\r\n"
         "0:Check_Modele=1\r\n0:Check_candidature=1\r\n4:Corps=Cordialement\r\n";
  desktop->Model().InitMenu();
  OpenSlot(Principale::FirstLetterSlot);
  EXPECT_EQ(Letter()->toPlainText(), QStringLiteral("Bonjour #Titre#\nÀ la main"));
  EXPECT_EQ(Sentence(4), QStringLiteral("Cordialement"));
  EXPECT_TRUE(Find<QAbstractButton>("Check_candidature0")->isChecked());
  EXPECT_FALSE(Find("CadreObjet")->isVisible());
  EXPECT_TRUE(Find("ListeCV")->isVisible());

  // A folder under the name of the model: the save fails, is told beside the letter, and is tried again.
  const auto blocked = Folder() / "Lettres" / "Bloquée.dat";
  std::filesystem::create_directories(blocked / "plein");
  Find<QLineEdit>("NomLettre")->setText(QStringLiteral("Bloquée"));
  auto* note = Find("NoteEnregistrement");
  EXPECT_FALSE(note->isVisible());
  TypeKeys(Letter(), QStringLiteral("a"));
  EXPECT_TRUE(Waits([&] { return note->isVisible(); }));
  std::filesystem::remove_all(blocked);
  TypeKeys(Letter(), QStringLiteral("b"));
  EXPECT_TRUE(Waits([&] { return !note->isVisible(); }));
  EXPECT_TRUE(dialogs.told.empty());
}

TEST_F(LetterWindowTest, TheHomePanelBeginsAndOpensLettersInAFreshForm) {
  std::ofstream(Folder() / "Lettres" / "Ancienne (ES).dat")
      << "Text1=Bonjour\r\nNom=Durand\r\nNomLettre=Ancienne (ES)\r\n";
  desktop->Model().InitMenu();
  OpenSlot(Principale::FirstLetterSlot);
  EXPECT_EQ(Line("Nom"), QStringLiteral("Durand"));
  TypeKeys(Letter(), QStringLiteral("Typed late. "));
  const auto choose = [&](const QString& title) {
    for (auto* button : desktop->Main().findChildren<QAbstractButton*>())
      if (button->isVisible() && button->accessibleName() == title) return button->click();
    FAIL() << title.toStdString();
  };
  const auto goHome = [&] {
    QTest::mouseClick(desktop->Main().findChild<QWidget*>(QStringLiteral("Label2")), Qt::LeftButton);
    EXPECT_EQ(desktop->Letters().Window(), nullptr);
    choose(QStringLiteral("Rédiger un modèle de lettre"));
  };
  goHome();
  dialogs.answer = false;
  choose(QStringLiteral("Réaliser un nouveau modèle de lettre"));
  EXPECT_TRUE(Line("Nom").isEmpty());
  EXPECT_TRUE(Find("Nom")->hasFocus());
  EXPECT_EQ(Sentence(0), QStringLiteral("Voici ma candidature."));
  EXPECT_TRUE(Letter()->toPlainText().isEmpty());
  goHome();
  choose(QStringLiteral("Ancienne (ES)"));
  EXPECT_EQ(Letter()->toPlainText(), QStringLiteral("Typed late. Bonjour"))
      << "leaving within a second loses nothing";
  EXPECT_TRUE(Sentence(0).isEmpty()) << "nothing of the letter before is left";
  // From one letter straight to a new one.
  TypeKeys(Letter(), QStringLiteral("Again. "));
  OpenSlot(Principale::FirstLetterSlot + 1);
  EXPECT_TRUE(Letter()->toPlainText().isEmpty());
  EXPECT_NE(Saved("Ancienne (ES).dat").find("Again. "), std::string::npos);
  EXPECT_TRUE(failures.empty());
}

TEST_F(LetterWindowTest, TheSentenceFileOpensAndTheWindowFitsASmallScreen) {
  OpenSlot(Principale::FirstLetterSlot);
  std::filesystem::path opened;
  desktop->Letters().Form().openDocument = [&](const std::filesystem::path& file) { opened = file; };
  Click("Command1");
  EXPECT_EQ(opened.filename(), "propositions.txt");

  desktop->Main().resize(1024, 768);
  EXPECT_LE(desktop->Letters().Window()->minimumSizeHint().width(), 1024);
}

}  // namespace
}  // namespace talvor
