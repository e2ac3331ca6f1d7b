// Every window on the screens that users have, and with large text: nothing is cut, nothing is out of reach.

#include <QComboBox>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollArea>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolButton>
#include <QWebEngineView>

#include <algorithm>
#include <array>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/desks/cv_desk.h"
#include "desktop/desks/letter_desk.h"
#include "desktop/shell/stat_widgets.h"
#include "desktop/shell/user_guide.h"
#include "desktop/widgets/card_button.h"
#include "tests/desktop/filled_fixture.h"

namespace talvor {
namespace {

// What a window of the largest size leaves on the screen: its title bar.
constexpr int TitleBar = 40;
constexpr std::array<QSize, 5> Screens{{
    {1024, 768},
    {1280, 720},  // also Full HD at 150 %
    {1366, 768},
    {960, 540},  // Full HD at 200 %
    {911, 512},  // 1366x768 where the desktop has 144 dots to the inch
}};
constexpr double LargeText = 1.5;

// What may be shorter than its text, and why. All of them tell the whole text in another way.
struct Elided {
  const char* name;
  const char* why;
};
constexpr std::array<Elided, 4> ElidedByDesign{{
    {"Information", "a line of help that takes what the header leaves; the slot's tooltip says the same"},
    {"ImageMenu", "the name of a file of the user; the tooltip has it whole"},
    {"Label5", "names the user's document; the tooltip has it whole"},
    {"CV", "the name of a file of the user; the tooltip has it whole"},
}};

// What a field must be able to show whole.
struct Entry {
  const char* field;
  const char16_t* text;
};
constexpr std::array<Entry, 22> Entries{{
    {"Email", u"julie.marchand@mail.example"},
    {"EmailDest", u"julie.marchand@mail.example"},
    {"Adresse1", u"7 rue des Lilas"},
    {"Adresse2", u"Bâtiment C"},
    {"CP", u"69003"},
    {"Tel", u"04 72 00 00 41"},
    {"Mob", u"06 00 00 12 34"},
    {"Telephone", u"04 72 00 00 14"},
    {"Age", u"32"},
    {"NbEnfants", u"2"},
    {"LieuNaissance", u"Annecy"},
    {"DateNaissance", u"14/06/1993"},
    {"DateDiffusion", u"09/03/2026"},
    {"DateEnvoi", u"09/03/2026"},
    {"DateLimite", u"31/03/2026"},
    {"DateRDV", u"17/03/2026"},
    {"Ville", u"Lyon"},
    {"Reference", u"CI-2026"},
    {"Adresse", u"18 quai des"},
    {"Police", u"Comic Sans MS"},
    {"NomModele", u"Classique"},
    {"CV", u"Julie"},
}};
constexpr TextView AnyEntry = u"Rédaction";

std::string Told(const QWidget& widget) {
  QString text = widget.property("text").toString();
  return std::string(widget.metaObject()->className()) + " \"" + widget.objectName().toStdString() + "\" «" +
         text.left(40).toStdString() + "»";
}

std::string Told(QSize size) { return std::to_string(size.width()) + 'x' + std::to_string(size.height()); }

std::string Told(QPoint place) { return std::to_string(place.x()) + ',' + std::to_string(place.y()); }

bool IsElidedByDesign(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) == nullptr &&
         std::any_of(ElidedByDesign.begin(), ElidedByDesign.end(), [&](const Elided& elided) {
           return widget.objectName().startsWith(QLatin1String(elided.name)) &&
                  (elided.name == std::string_view("Information") || !widget.toolTip().isEmpty());
         });
}

bool InPage(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget())
    if (qobject_cast<const QWebEngineView*>(widget) != nullptr) return true;
  return false;
}

QString WithoutMnemonic(QString text) { return text.remove(QLatin1Char('&')); }

QSize WantedByLabel(const QLabel& label) {
  if (label.text().isEmpty()) return {};
  if (!label.wordWrap()) return label.sizeHint();
  // The longest word stands on one line.
  int widest = 0;
  if (label.textFormat() != Qt::RichText && !Qt::mightBeRichText(label.text()))
    for (const QString& word : WithoutMnemonic(label.text()).split(QRegularExpression(QStringLiteral("\\s"))))
      widest = std::max(widest, label.fontMetrics().horizontalAdvance(word));
  return {widest, label.heightForWidth(label.width())};
}

bool InSegments(const QWidget& widget) {
  for (const QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget())
    if (around->property("seg").toBool()) return true;
  return false;
}

QSize WantedByButton(const QAbstractButton& button) {
  if (button.text().isEmpty()) return {};
  if (dynamic_cast<const CardButton*>(&button) != nullptr) {
    const QSize least = button.minimumSizeHint();
    return {least.width(),
            button.hasHeightForWidth() ? button.heightForWidth(button.width()) : least.height()};
  }
  if (const auto* tile = dynamic_cast<const IconTile*>(&button)) {
    QFont caption = tile->font();
    caption.setPixelSize(TextPixels(IconTile::CaptionFont));
    const QFontMetrics metrics(caption);
    return {metrics.horizontalAdvance(WithoutMnemonic(tile->text())) + 4, 32 + metrics.height()};
  }
  const QSize hint = button.sizeHint();
  if (!InSegments(button)) return hint;
  // The chosen one of several is bold.
  QFont bold = button.font();
  bold.setWeight(QFont::DemiBold);
  constexpr int Edges = 10;
  return hint.expandedTo({QFontMetrics(bold).horizontalAdvance(WithoutMnemonic(button.text())) + Edges, 0});
}

QSize WantedByField(const QLineEdit& field) {
  TextView text = AnyEntry;
  for (const Entry& entry : Entries)
    if (field.objectName() == QLatin1String(entry.field)) text = entry.text;
  constexpr int Edges = 16;
  constexpr int Sign = 22;
  int signs = 0;
  for (const QAction* action : field.actions()) signs += action->isVisible();
  return {field.fontMetrics().horizontalAdvance(ToQt(text)) + Edges + signs * Sign,
          field.minimumSizeHint().height()};
}

QSize WantedByChoice(const QComboBox& choice) {
  QStyleOptionComboBox option;
  option.initFrom(&choice);
  option.editable = choice.isEditable();
  const int room = choice.style()
                       ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &choice)
                       .width();
  int widest = 0;
  for (int i = 0; i < choice.count(); ++i)
    widest = std::max(widest, choice.fontMetrics().horizontalAdvance(choice.itemText(i)));
  return {choice.width() - room + widest, choice.minimumSizeHint().height()};
}

// What a widget needs to show its text whole; empty for a widget without text.
QSize Wanted(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return WantedByLabel(*label);
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return WantedByButton(*button);
  if (const auto* choice = qobject_cast<const QComboBox*>(&widget)) return WantedByChoice(*choice);
  if (qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr) return {};
  if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) return WantedByField(*field);
  if (qobject_cast<const QPlainTextEdit*>(&widget) != nullptr)
    return {widget.fontMetrics().averageCharWidth() * 12, widget.fontMetrics().lineSpacing() + 8};
  if (dynamic_cast<const MonthCalendar*>(&widget) != nullptr) return widget.sizeHint();
  return {};
}

// The first widget around it that hides a part of it for good; null when all of it can be brought into view.
const QWidget* HiddenBy(const QWidget& widget) {
  QRect place = widget.rect();
  for (const QWidget* inner = &widget; !inner->isWindow(); inner = inner->parentWidget()) {
    const QWidget* outer = inner->parentWidget();
    place.translate(inner->pos());
    const auto* scroll = qobject_cast<const QScrollArea*>(outer->parentWidget());
    if (scroll != nullptr && scroll->viewport() == outer) {
      // The bars reach the whole of the content.
      const bool sideways = scroll->horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
      if (!sideways && inner->width() > outer->width()) return scroll;
      place = outer->rect();
      continue;
    }
    if (!outer->rect().contains(place)) return outer;
  }
  return nullptr;
}

class ScreensTest : public FilledDesktopTest, public testing::WithParamInterface<double> {
 protected:
  ScreensTest() {
    theme.SetTextScale(GetParam());
    theme.Apply(Theme::Palette::Light);
    Restart();
    ClickLeaf(u"s1");
  }
  ~ScreensTest() override { App().setStyleSheet({}); }

  // Visits that window of the program on each screen; `open` gives it, and may give it anew.
  void Visit(const char* state, const std::function<QWidget*()>& open) {
    for (const QSize& screen : Screens) {
      SCOPED_TRACE(std::string(state) + " on " + std::to_string(screen.width()) + 'x' +
                   std::to_string(screen.height()));
      const QSize room = screen - QSize(0, TitleBar);
      desktop->Main().resize(room);
      EXPECT_EQ(desktop->Main().size(), room) << "the window is larger than the screen";
      QWidget* window = open();
      ASSERT_NE(window, nullptr);
      QApplication::processEvents();
      if (window != &desktop->Main()) {
        EXPECT_LE(window->width(), room.width());
        EXPECT_LE(window->height(), room.height());
      }
      ExpectWhole(*window);
    }
  }
  void VisitMain(const char* state) {
    Visit(state, [this] { return Main(); });
  }
  void VisitForm(TextView form) {
    Visit(ToUtf8(form).c_str(), [this, form = Text{form}] {
      desktop->Windows().Unload(form);
      QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      return Open(form);
    });
    desktop->Windows().Unload(form);
  }

  // A layout settles in several rounds of events, the more so on a busy machine.
  static void ExpectWhole(QWidget& window) {
    constexpr int SettledMilliseconds = 3000;
    WaitFor([&] { return Faults(window).empty(); }, SettledMilliseconds);
    for (const std::string& fault : Faults(window)) ADD_FAILURE() << fault;
  }

  static std::vector<std::string> Faults(QWidget& window) {
    std::vector<std::string> faults;
    QHash<QWidget*, QWidgetList> siblings;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      if (!widget->isVisible() || widget->window() != &window || InPage(widget)) continue;
      const QSize wanted = Wanted(*widget);
      if (wanted.isEmpty()) continue;
      siblings[widget->parentWidget()].append(widget);
      if (const QWidget* outer = HiddenBy(*widget))
        faults.push_back(Told(*widget) + " at " + Told(widget->mapTo(outer, QPoint())) + " is hidden by " +
                         Told(*outer) + " of " + Told(outer->size()));
      if ((!IsElidedByDesign(*widget) && widget->width() < wanted.width()) ||
          widget->height() < wanted.height())
        faults.push_back(Told(*widget) + " is cut: it wants " + Told(wanted) + " and has " +
                         Told(widget->size()));
    }
    if (siblings.isEmpty()) faults.push_back("nothing is shown");
    for (const QWidgetList& children : siblings)
      for (const QWidget* one : children)
        for (const QWidget* other : children)
          if (one < other && one->geometry().intersects(other->geometry()))
            faults.push_back(Told(*one) + " lies over " + Told(*other));
    return faults;
  }
};

TEST_P(ScreensTest, TheHomePanelAndItsLevels) {
  Click("Label2");
  VisitMain("home");
  for (const char16_t* title : {u"Rédiger un modèle de lettre", u"Gérer les candidatures"}) {
    ChooseRow(title);
    Wait(300);
    VisitMain(ToUtf8(title).c_str());
    ChooseRow(u"Retour au menu principal");
  }
}

TEST_P(ScreensTest, TheCandidaturesWithAndWithoutTheBrowser) {
  VisitMain("candidatures");
  desktop->Model().AdresseWeb = u"data:text/html,<p>offre de contrat, lieu et salaire du poste</p>";
  Click("Action4");
  ASSERT_TRUE(PageStands());
  desktop->Candidatures().Web().BringLinkVisible = true;
  Window().Refresh();
  VisitMain("with the browser");
  Window().Do([&] { desktop->Candidatures().Pages().Navigate(u"file:///"); });
  VisitMain("with a notice");
}

TEST_P(ScreensTest, TheEditorOfCvsWithEachOfItsPanels) {
  desktop->Windows().Unload(u"FormCand");
  desktop->Cv().OpenNew();
  VisitMain("a new CV");
  desktop->Cv().OpenFile(u"Riche.dat");
  VisitMain("a CV");
  for (const char* entry : {"Entree0", "Entree1"}) {
    Click(entry);
    VisitMain(entry);
  }
  desktop->Cv().Window()->Do([&] { desktop->Cv().Form().OpenTemplates(); });
  VisitMain("templates");
  desktop->Cv().Window()->Do([&] { desktop->Cv().Form().OpenFonts(); });
  VisitMain("fonts");
  Visit("print preview", [this] {
    delete desktop->Cv().PreviewWindow();
    desktop->Cv().Preview();
    return desktop->Cv().PreviewWindow();
  });
  delete desktop->Cv().PreviewWindow();
  VisitForm(ConvertForm);
}

TEST_P(ScreensTest, TheLetterPrintedAndByMail) {
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
    VisitMain("letter");
  }
  window.Do([&] { letter.saveFailed = true; });
  VisitMain("a letter that could not be saved");
}

TEST_P(ScreensTest, TheWindowsOverTheMainOne) {
  std::ofstream(scratch.Path() / "Documents" / "cv.pdf") << "x";
  VisitForm(ApplyForm);
  for (const TextView form : {TextView(u"FormStat"), TextView(u"FormLoadSave"), PrintAdviceForm,
                              TextView(u"APropos"), UserGuideForm})
    VisitForm(form);
}

INSTANTIATE_TEST_SUITE_P(Text, ScreensTest, testing::Values(1.0, LargeText),
                         [](const auto& scale) { return scale.param == 1.0 ? "usual" : "large"; });

}  // namespace
}  // namespace talvor
