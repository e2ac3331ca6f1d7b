// bench_desktop: how long the save of every three seconds and its rebuild of the tree block the
// interface, how soon the page of a CV follows the zone that is left, and how the start to a usable main
// window compares with an empty window with a web view.

#include <QElapsedTimer>
#include <QEventLoop>
#include <QMainWindow>
#include <QTemporaryDir>
#include <QWebEngineView>
#include <algorithm>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include "app/installation.h"
#include "desktop/application.h"
#include "desktop/desks/candidature_desk.h"
#include "desktop/desks/cv_desk.h"
#include "desktop/desktop.h"
#include "desktop/platform/qt_dialogs.h"
#include "desktop/widgets/text_edge.h"
#include "tracking/status_lists.h"

namespace {

using namespace talvor;

class BenchClock : public Clock {
 public:
  Day Today() const override { return *DayOf({2026, 3, 1}); }
};

class BenchEnvironment : public Environment {
 public:
  explicit BenchEnvironment(Text folder) : folder_(std::move(folder)) {}
  Text Variable(TextView name) const override { return name == u"AppData" ? folder_ : Text{}; }

 private:
  Text folder_;
};

double Milliseconds(const QElapsedTimer& timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

void Fill(const Clock& clock, int rows) {
  Database database = Database::Open(clock);
  for (int i = 0; i < rows; ++i) {
    const auto at = static_cast<std::size_t>(i);
    Candidature row;
    row.Intitule = u"Chargée De Communication " + NumberText(i);
    row.Societe = u"Société " + NumberText(i % 500);
    row.DateDiffusion = DateText(Day{46000 + i % 300});
    row.Statut = ListeStatuts[at % ListeStatuts.size()];
    row.Description = Text(2000, u'd');
    database.Save(database.BeginRow(), row);
  }
}

// The tick of the timer with something to save, the windows shown anew and painted.
void MeasureSave(Desktop& desktop, int rows) {
  desktop.Windows().Show(u"FormCand");
  FormCandWindow& window = *desktop.Candidatures().Window();
  window.StopTimers();
  desktop.Windows().PumpEvents();
  window.Do([&] { desktop.Candidatures().Form().ChargerCandidature(static_cast<std::int16_t>(rows / 2)); });
  std::vector<double> saves;
  std::vector<double> views;
  double processor = 0;
  for (int i = 0; i < 15; ++i) {
    desktop.Candidatures().Form().Remarques += u"x";
    QElapsedTimer timer;
    timer.start();
    const std::clock_t before = std::clock();
    window.Tick3000();
    desktop.Windows().PumpEvents();
    processor += static_cast<double>(std::clock() - before) * 1000 / CLOCKS_PER_SEC;
    saves.push_back(Milliseconds(timer));
    timer.start();
    window.List().Tree().Rebuild();
    window.List().Tree().viewport()->repaint();
    views.push_back(Milliseconds(timer));
  }
  std::sort(saves.begin(), saves.end());
  std::sort(views.begin(), views.end());
  std::cout << rows << " rows: save and rebuild " << saves[saves.size() / 2] << " ms (worst " << saves.back()
            << "; processor " << processor / static_cast<double>(saves.size()) << "), of which the view "
            << views[views.size() / 2] << " ms\n";
}

double StartDesktop(const Theme& theme, const Environment& environment, const Clock& clock, Dialogs& dialogs,
                    std::unique_ptr<Desktop>& desktop) {
  QElapsedTimer timer;
  timer.start();
  desktop = std::make_unique<Desktop>(theme, environment, clock, dialogs);
  if (!desktop->StartAtOnce()) return 0;
  desktop->Windows().PumpEvents();
  return Milliseconds(timer);
}

double StartEmptyWindow() {
  QElapsedTimer timer;
  timer.start();
  QMainWindow window;
  window.setCentralWidget(new QWebEngineView(&window));
  window.resize(1280, 800);
  window.show();
  QCoreApplication::processEvents();
  return Milliseconds(timer);
}

// From leaving a zone until its page, three sheets long, has been loaded.
void MeasureCvPage(Desktop& desktop) {
  desktop.Cv().OpenNew();
  CvWindow& window = *desktop.Cv().Window();
  FormRedigerCV& form = desktop.Cv().Form();
  Text career;
  for (int year = 1985; year < 2025; ++year)
    career += u"Depuis " + NumberText(year) +
              u" : Chargée de communication\r\n- Préparation des salons\r\n- Suivi de la presse\r\n\r\n";
  window.Do([&] {
    form.HideIdentityBox();
    form.Change(u"Nom", u"Marchand");
    form.Change(u"Experiences", career);
  });
  std::vector<double> pages;
  for (int i = 0; i < 15; ++i) {
    QEventLoop loop;
    QObject::connect(window.Page().page(), &QWebEnginePage::loadFinished, &loop, &QEventLoop::quit);
    QElapsedTimer timer;
    timer.start();
    window.Do([&] { form.Leave(u"Experiences"); });
    loop.exec();
    pages.push_back(Milliseconds(timer));
  }
  // The first one starts the engine of the page.
  std::sort(pages.begin() + 1, pages.end());
  std::cout << "page of a CV after its zone: " << pages[pages.size() / 2] << " ms (worst " << pages.back()
            << ", the first " << pages.front() << ")\n";
}

// The program over a data folder of its own.
struct Program {
  Program(const Theme& style, int rows) : theme(style) {
    const std::filesystem::path workspace = workspace_paths::UsualDataFolder(environment);
    InstallerDossier(workspace, DeliveredFiles());
    std::filesystem::current_path(workspace);
    Fill(clock, rows);
  }
  double Start() {
    desktop.reset();
    return StartDesktop(theme, environment, clock, dialogs, desktop);
  }

  const Theme& theme;
  QTemporaryDir scratch;
  BenchClock clock;
  BenchEnvironment environment{FromQt(scratch.path())};
  QtDialogs dialogs;
  std::unique_ptr<Desktop> desktop;
};

void MeasureList(const Theme& theme, int rows) {
  Program program(theme, rows);
  std::cout << rows << " rows: first start " << program.Start();
  std::cout << " ms, second start of the day " << program.Start() << " ms\n";
  MeasureSave(*program.desktop, rows);
}

}  // namespace

int main(int argc, char** argv) {
  Application application(argc, argv);
  QElapsedTimer timer;
  timer.start();
  Theme theme;
  theme.FollowDesktop();
  std::cout << "style: " << Milliseconds(timer) << " ms\n";
  MeasureList(theme, 1000);
  MeasureList(theme, 10000);
  // The web engine starts with its first view, so this comes before the page of a CV.
  std::cout << "empty window with a web view: " << StartEmptyWindow() << " ms\n";
  Program program(theme, 0);
  program.Start();
  MeasureCvPage(*program.desktop);
  return 0;
}
