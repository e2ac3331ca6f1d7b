// The real parts of the platform that stand on the desktop: documents, window titles, clipboard, dialogs,
// and the look.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QProcess>
#include <QSet>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QtTest/QTest>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "desktop/platform/qt_clipboard.h"
#include "desktop/platform/qt_dialogs.h"
#include "desktop/platform/qt_documents.h"
#include "desktop/platform/window_titles.h"
#include "desktop/widgets/text_edge.h"
#include "desktop/widgets/theme.h"
#include "tests/desktop/waiting.h"
#include "tests/fakes/scratch_folder.h"

#ifdef TALVOR_XCB
#include <xcb/xcb.h>
#endif

namespace talvor {
namespace {

namespace fs = std::filesystem;

// An environment variable with another value for the life of the object.
class Variable {
 public:
  Variable(const char* name, const QByteArray& value) : name_(name), before_(qgetenv(name)) {
    qputenv(name, value);
  }
  ~Variable() { qputenv(name_, before_); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* name_;
  QByteArray before_;
};

void WriteProgram(const fs::path& file, const char* script) {
  std::ofstream(file) << script;
  fs::permissions(file, fs::perms::owner_all);
}

TEST(DocumentsAdapter, ATargetReachesTheOpenerWholeAndIsReadByNoShell) {
  const ScratchFolder scratch;
  WriteProgram("xdg-open", "#!/bin/sh\nprintf '%s\\n' \"$#\" \"$1\" > reçu.part && mv reçu.part reçu\n");
  const Variable path("PATH", QByteArray::fromStdString(scratch.Path().string()) + ":" + qgetenv("PATH"));
  for (const TextView target :
       {u"/tmp/Mon CV d'été \"final\" $(touch piège) ; rm *.pdf", u"https://exemple.example/?a=b&c=d"}) {
    ASSERT_TRUE(QtDocuments().Open(target));
    ASSERT_TRUE(WaitFor([] { return fs::exists("reçu"); }));
    std::ifstream file("reçu");
    std::string count, argument;
    std::getline(file, count);
    std::getline(file, argument);
    EXPECT_EQ(count, "1");
    EXPECT_EQ(argument, ToUtf8(target));
    fs::remove("reçu");
  }
  ASSERT_TRUE(QtDocuments().Open(u"--version.doc"));
  ASSERT_TRUE(WaitFor([] { return fs::exists("reçu"); }));
  std::ifstream file("reçu");
  std::string count, argument;
  file >> count >> argument;
  EXPECT_EQ(argument, "./--version.doc") << "a name is no option";
  EXPECT_FALSE(fs::exists("piège"));

  const Variable nothing("PATH", "/nowhere");
  EXPECT_FALSE(QtDocuments().Open(u"/tmp/a.doc")) << "no opener on the machine";
  EXPECT_TRUE(QtDocuments().ProgramFor(u"/tmp/a.doc").empty());
}

TEST(DocumentsAdapter, AnOpenerThatFailsAfterItsStartIsHeardAndOneThatGoesOnIsLeftAlone) {
  const ScratchFolder scratch;
  WriteProgram("xdg-open",
               "#!/bin/sh\ncase $1 in\n*.pdf) sleep 0.2; exit 3;;\n*.txt) exit 0;;\n"
               "*) touch ouvert; sleep 0.6; touch fini;;\nesac\n");
  const Variable path("PATH", QByteArray::fromStdString(scratch.Path().string()) + ":" + qgetenv("PATH"));
  std::vector<Text> refused;
  auto documents = std::make_unique<QtDocuments>();
  documents->OnRefused = [&](TextView target) { refused.emplace_back(target); };
  EXPECT_TRUE(documents->Open(u"Mon CV.pdf"));
  EXPECT_TRUE(documents->Open(u"note.txt"));
  EXPECT_TRUE(WaitFor([&] { return !refused.empty(); }));
  EXPECT_EQ(refused, std::vector<Text>{u"Mon CV.pdf"});

  EXPECT_TRUE(documents->Open(u"autre.pdf"));
  EXPECT_TRUE(documents->Open(u"lettre.doc"));
  ASSERT_TRUE(WaitFor([] { return fs::exists("ouvert"); }));
  documents.reset();
  EXPECT_TRUE(WaitFor([] { return fs::exists("fini"); })) << "what was opened outlives the adapter";
  EXPECT_EQ(refused.size(), 1u) << "nobody is there to hear it";
}

TEST(DocumentsAdapter, TheProgramOfAKindIsTheOneTheUserHasChosen) {
  const ScratchFolder scratch;
  fs::create_directories("applications");
  std::ofstream("applications/carnet.desktop")
      << "[Desktop Entry]\nType=Application\nName=Notebook\nName[fr]=Carnet\nExec=carnet "
         "%f\nMimeType=text/plain;\n[Desktop Action Vide]\nName[fr]=Page vide\n";
  std::ofstream("mimeapps.list") << "[Default Applications]\ntext/plain=carnet.desktop\n";
  std::ofstream("note.txt") << "Bonjour\n";
  WriteProgram("carnet", "#!/bin/sh\n");
  const QByteArray here = QByteArray::fromStdString(scratch.Path().string());
  const Variable data("XDG_DATA_HOME", here);
  const Variable config("XDG_CONFIG_HOME", here);
  const Variable path("PATH", here + ":" + qgetenv("PATH"));
  EXPECT_EQ(QtDocuments().ProgramFor(u"note.txt"), u"Carnet");
  EXPECT_EQ(QtDocuments().ProgramFor(u"absent.txt"), u"");
}

#ifdef TALVOR_XCB
TEST(WindowTitles, AreThoseThatTheWindowManagerListsFromFrontToBack) {
  QProcess screen;
  screen.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                        QStringLiteral("-nolisten"), QStringLiteral("tcp")});
  ASSERT_TRUE(screen.waitForReadyRead(20000)) << "no Xvfb";
  const QByteArray display = ":" + screen.readLine().trimmed();
  xcb_connection_t* server = xcb_connect(display.constData(), nullptr);
  ASSERT_EQ(xcb_connection_has_error(server), 0);

  const auto atom = [&](const std::string& name) {
    auto* reply = xcb_intern_atom_reply(
        server, xcb_intern_atom(server, 0, static_cast<std::uint16_t>(name.size()), name.data()), nullptr);
    const xcb_atom_t found = reply->atom;
    std::free(reply);
    return found;
  };
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
  std::vector<xcb_window_t> windows;
  const auto open = [&](xcb_atom_t property, const std::string& title) {
    const xcb_window_t window = xcb_generate_id(server);
    xcb_create_window(server, 0, window, root, 0, 0, 10, 10, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0, 0, nullptr);
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, window, property, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(title.size()), title.data());
    windows.push_back(window);
  };
  open(atom("_NET_WM_NAME"), "http://exemple.example - Navigateur d’été");
  open(XCB_ATOM_WM_NAME, "Ancien OpenOffice");
  open(atom("_NET_WM_NAME"), "");
  EXPECT_TRUE(ReadWindowTitles(server).empty()) << "no window manager, no list";
  xcb_change_property(server, XCB_PROP_MODE_REPLACE, root, atom("_NET_CLIENT_LIST_STACKING"), XCB_ATOM_WINDOW,
                      32, static_cast<std::uint32_t>(windows.size()), windows.data());
  EXPECT_EQ(ReadWindowTitles(server),
            (std::vector<Text>{u"Ancien OpenOffice", u"http://exemple.example - Navigateur d’été"}));
  xcb_disconnect(server);
  screen.terminate();
  screen.waitForFinished();
}
#endif

TEST(ClipboardAdapter, TextsComeWithTheirLineEndsAndPicturesAsAFile) {
  QtClipboard clipboard;
  QGuiApplication::clipboard()->setText(QStringLiteral("Maçon\nà Lyon"));
  EXPECT_EQ(clipboard.ReadText(), u"Maçon\r\nà Lyon");
  EXPECT_FALSE(clipboard.Image());
  QImage red(4, 6, QImage::Format_RGB32);
  red.fill(Qt::red);
  QGuiApplication::clipboard()->setImage(red);
  const auto bytes = clipboard.Image();
  ASSERT_TRUE(bytes);
  EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(*bytes)).size(), red.size());
  clipboard.Clear();
  EXPECT_FALSE(clipboard.Image());
  EXPECT_TRUE(clipboard.ReadText().empty());
}

// Does something to the dialog that is about to open.
template <class Dialog>
void Once(const std::function<void(Dialog&)>& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

TEST(Pickers, AFileIsPickedAmongItsKindsAndTheCurrentFolderStays) {
  const ScratchFolder scratch;
  fs::create_directory("Photos");
  for (const char* name : {"Photos/Été.JPG", "Photos/lettre.txt"}) std::ofstream(name) << "x";
  QtPickers pickers;
  const FileQuestion question{u"Sélection d'une photographie", scratch.Path() / "Photos",
                              u"Fichiers Images (*.jpg,*.gif)|*.jpg;*.gif|Tous (*.*)|*.*"};
  Once<QFileDialog>([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Sélection d'une photographie"));
    EXPECT_EQ(dialog.directory().dirName(), QStringLiteral("Photos"));
    EXPECT_EQ(dialog.nameFilters().size(), 2);
    EXPECT_TRUE(
        QDir::match(dialog.nameFilters()[0].section(QLatin1Char('('), 1).section(QLatin1Char(')'), 0, 0),
                    QStringLiteral("Été.JPG")))
        << dialog.nameFilters()[0].toStdString();
    dialog.selectFile(QStringLiteral("Été.JPG"));
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_EQ(pickers.OpenFile(question), scratch.Path() / "Photos" / "Été.JPG");
  Once<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_FALSE(pickers.OpenFile(question));
  EXPECT_EQ(fs::current_path(), scratch.Path());

  Once<QFileDialog>([](QFileDialog& dialog) {
    EXPECT_EQ(QFileInfo(dialog.directory().path()).fileName(), QStringLiteral("Photos"));
    EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(), QString())
        << "a missing folder is no name of a file";
    dialog.reject();
  });
  EXPECT_FALSE(pickers.OpenFile({u"Photo", scratch.Path() / "Photos/2019/Été", u"Tous (*.*)|*.*"}));

  Once<QColorDialog>([](QColorDialog& dialog) {
    dialog.setCurrentColor(QColor(1, 128, 255));
    dialog.accept();
  });
  EXPECT_EQ(pickers.PickColour(), (Colour{1, 128, 255}));
  for (const auto& [now, start] :
       {std::pair{"#0369A1", QColor(3, 105, 161)}, {"rouille", QColor(Qt::white)}}) {
    pickers.askCurrentColour = [text = now] { return QColor(QString::fromUtf8(text)); };
    Once<QColorDialog>([expected = start](QColorDialog& dialog) {
      EXPECT_EQ(dialog.currentColor(), expected);
      dialog.accept();
    });
    EXPECT_TRUE(pickers.PickColour());
  }
  Once<QColorDialog>([](QColorDialog& dialog) { dialog.reject(); });
  EXPECT_FALSE(pickers.PickColour());
}

TEST(Pickers, WithoutAFolderTheUserStartsOnTheKeyOrAtHome) {
  const ScratchFolder scratch;
  const auto here = [&](const char* name) {
    return QString::fromStdString((scratch.Path() / name).string());
  };
  fs::create_directories("home");
  fs::create_directories("media/claire");
  const Variable home("HOME", here("home").toUtf8());
  const Variable user("USER", "personne-de-ce-nom");
  EXPECT_EQ(UsersFolder({here("absent"), here("media/claire")}), here("home")) << "nothing is plugged in";
  fs::create_directory("media/claire/CLE");
  EXPECT_EQ(UsersFolder({here("absent"), here("media/claire")}), here("media/claire/CLE"));
  fs::create_directory("media/claire/DISQUE");
  EXPECT_EQ(UsersFolder({here("absent"), here("media/claire")}), here("media/claire")) << "the user chooses";
  Once<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath(), here("home"));
    dialog.reject();
  });
  EXPECT_FALSE(QtPickers().SaveFile({u"Copie", {}, u"Talvor.mdb|Talvor.mdb", u"Talvor.mdb"}));
}

// The column of a list of files, row by row, as it is written.
QStringList Column(const QAbstractItemModel& files, const QModelIndex& folder, int column) {
  QStringList texts;
  for (int row = 0; row < files.rowCount(folder); ++row)
    texts.append(files.index(row, column, folder).data().toString());
  return texts;
}

TEST(Pickers, TheDialogsOfQtSpeakFrenchAndShowTheirSigns) {
  Theme theme;
  theme.Apply(Theme::Palette::Light);
  const ScratchFolder scratch;
  fs::create_directory("Février");
  std::ofstream("lettre.txt") << std::string(3000, 'x');
  QFile file(QStringLiteral("lettre.txt"));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.setFileTime(QDateTime({2026, 2, 3}, {14, 5}), QFileDevice::FileModificationTime));
  file.close();
  Once<QFileDialog>([](QFileDialog& dialog) {
    dialog.setViewMode(QFileDialog::Detail);
    auto* list = dialog.findChild<QTreeView*>();
    const auto column = [&](int index) {
      return Column(*list->model(), list->rootIndex(), index).join(u'|');
    };
    EXPECT_TRUE(WaitFor([&] { return column(3).contains(QStringLiteral("03/02/2026 14:05")); }))
        << column(3).toStdString();
    EXPECT_TRUE(column(1).contains(QStringLiteral("2,93 Kio"))) << column(1).toStdString();
    EXPECT_TRUE(column(2).contains(QStringLiteral("Dossier"))) << column(2).toStdString();

    const QImage up = dialog.findChild<QToolButton*>(QStringLiteral("toParentButton"))->grab().toImage();
    QSet<QRgb> colours;
    for (int y = 6; y < up.height() - 6; ++y)
      for (int x = 6; x < up.width() - 6; ++x) colours.insert(up.pixel(x, y));
    EXPECT_GT(colours.size(), 1) << "an empty button";
    dialog.reject();
  });
  EXPECT_FALSE(QtPickers().OpenFile({u"Fichiers", scratch.Path(), u"Tous (*)|*"}));
}

// The contrast of two colours as the accessibility guidelines of the web reckon it, 1 to 21.
double Contrast(const QColor& a, const QColor& b) {
  const auto luminance = [](const QColor& colour) {
    const auto linear = [](double part) {
      return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
  };
  const double one = luminance(a) + 0.05;
  const double two = luminance(b) + 0.05;
  return one > two ? one / two : two / one;
}

class ThemePalettes : public testing::TestWithParam<Theme::Palette> {};

TEST_P(ThemePalettes, HaveTheContrastThatTiredEyesNeed) {
  Theme theme;
  theme.Apply(GetParam());
  const auto expect = [&](const QStringList& fronts, const QStringList& planes, double least) {
    for (const QString& front : fronts)
      for (const QString& plane : planes)
        EXPECT_GE(Contrast(theme.Color(front), theme.Color(plane)), least)
            << front.toStdString() << " on " << plane.toStdString();
  };
  const QStringList planes{QStringLiteral("window"), QStringLiteral("surface"), QStringLiteral("raised"),
                           QStringLiteral("sunken"), QStringLiteral("field")};
  expect(
      {QStringLiteral("text"), QStringLiteral("text2"), QStringLiteral("text3"), QStringLiteral("primary")},
      planes, 4.5);
  expect({QStringLiteral("edge"), QStringLiteral("focus")}, planes, 3);
  for (const char* tone : {"ok", "bad", "new", "warn", "visit"})
    expect({QString::fromUtf8(tone)}, {QString::fromUtf8(tone) + QStringLiteral("soft")}, 4.5);
  expect({QStringLiteral("onprimary")},
         {QStringLiteral("primary"), QStringLiteral("primaryh"), QStringLiteral("primaryp")}, 4.5);
  expect({QStringLiteral("onpsoft")}, {QStringLiteral("psoft")}, 4.5);
  expect({QStringLiteral("ontip")}, {QStringLiteral("tip")}, 4.5);
}

TEST_P(ThemePalettes, LeaveNoTokenUnresolvedInTheSheet) {
  Theme theme;
  int changes = 0;
  QObject::connect(&theme, &Theme::Changed, [&] { ++changes; });
  theme.Apply(GetParam());
  EXPECT_EQ(changes, 1);
  EXPECT_FALSE(qApp->styleSheet().isEmpty());
  EXPECT_FALSE(qApp->styleSheet().contains(QLatin1Char('@')));
  EXPECT_EQ(QApplication::palette().color(QPalette::Text), theme.Color(QStringLiteral("text")));
}

INSTANTIATE_TEST_SUITE_P(Both, ThemePalettes, testing::Values(Theme::Palette::Light, Theme::Palette::Dark));

}  // namespace
}  // namespace talvor
