// talvor_captures FOLDER [SIZE]: a picture of each form with sample data, light and dark, and in a folder for
// each of the smaller screens; with a size, of that screen alone.

#include <unistd.h>
#include <QDir>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimer>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <tuple>
#include <utility>

#include "app/installation.h"
#include "desktop/application.h"
#include "desktop/captures_samples.h"
#include "desktop/desks/backup_desk.h"
#include "desktop/desks/candidature_desk.h"
#include "desktop/desks/cv_desk.h"
#include "desktop/desks/letter_desk.h"
#include "desktop/desks/library_desk.h"
#include "desktop/desks/report_desk.h"
#include "desktop/desktop.h"
#include "desktop/platform/file_dialog.h"
#include "desktop/platform/qt_dialogs.h"
#include "desktop/shell/about_box.h"
#include "desktop/shell/backup_window.h"
#include "desktop/shell/main_window.h"
#include "desktop/shell/user_guide.h"
#include "desktop/widgets/text_edge.h"

namespace {

using namespace talvor;

class SampleClock : public Clock {
 public:
  Day Today() const override { return *DayOf({2026, 3, 11}); }
};

class SampleEnvironment : public Environment {
 public:
  explicit SampleEnvironment(Text folder) : folder_(std::move(folder)) {}
  Text Variable(TextView name) const override {
    return name == u"AppData" || name == u"temp" ? folder_ : Text{};
  }

 private:
  Text folder_;
};

void Settle(QtShell& shell) {
  shell.Wait(60);
  shell.PumpEvents();
}

class Photographer {
 public:
  Photographer(Desktop& desktop, QString folder, QString suffix)
      : desktop_(desktop), folder_(std::move(folder)), suffix_(std::move(suffix)) {}

  void Take(const char16_t* name, QWidget* window = nullptr) {
    Settle(desktop_.Windows());
    QWidget* shown = window == nullptr ? &desktop_.Main() : window;
    const QString file = folder_ + QLatin1Char('/') + QString::fromUtf16(name) + suffix_;
    if (shown->grab().save(file)) std::cout << file.toStdString() << '\n';
  }

 private:
  Desktop& desktop_;
  QString folder_;
  QString suffix_;
};

void PhotographCv(Desktop& desktop, Photographer& photographer) {
  CvDesk& cv = desktop.Cv();
  cv.OpenNew();
  photographer.Take(u"cv-nouveau");
  cv.OpenFile(u"Marchand Julie.dat");
  constexpr int UntilThePageStands = 1500;
  desktop.Windows().Wait(UntilThePageStands);
  photographer.Take(u"cv-page");
  const std::array<const char16_t*, 2> entries{u"cv-paragraphes", u"cv"};
  for (std::size_t i = 0; i < entries.size(); ++i) {
    cv.Window()->Do([&] { cv.Form().OpenEntry(i); });
    photographer.Take(entries[i]);
  }
  cv.Window()->Do([&] { cv.Form().OpenTemplates(); });
  photographer.Take(u"cv-modeles");
  cv.Window()->Do([&] { cv.Form().OpenFonts(); });
  photographer.Take(u"cv-polices");
  cv.Window()->Do([&] { cv.Form().ClosePanels(); });
  cv.Window()->Do([&] { cv.Form().ShowHelpOf(14); });
  photographer.Take(u"cv-aide");
  desktop.Windows().Unload(EditorHelpForm);
  cv.Preview();
  desktop.Windows().Wait(UntilThePageStands);
  photographer.Take(u"cv-apercu", cv.PreviewWindow());
  delete cv.PreviewWindow();
  desktop.Windows().Unload(EditorForm);
  desktop.Windows().Unload(EditorForm);
}

// The sender of the letters.
constexpr const char* SampleSender =
    "Nom=Marchand\r\nPr\xE9nom=Julie\r\nAdresse1=7 Rue Des Lilas\r\nAdresse2=B\xE2timent C\r\nCP=69003\r\n"
    "Ville=Lyon\r\nTel=04 72 00 00 41\r\nMob=06 00 00 12 34\r\nEmail=julie.marchand@mail.example\r\n"
    "Fonction=Charg\xE9"
    "e de communication\r\nPoste=charg\xE9"
    "e de projet\r\nLastSociete=Orvane\r\n"
    "Domaine=information interne\r\n";

void PhotographLetters(Desktop& desktop, Photographer photographer) {
  QtShell& shell = desktop.Windows();
  shell.Load(LetterForm);
  LetterWindow& window = *desktop.Letters().Window();
  FormLettre& letter = desktop.Letters().Form();
  std::ofstream("CV/Assistante Com.dat") << SampleSender;
  window.Do([&] {
    letter.ChargerFichierLettre("Lettres/Julie Marchand (IR).dat");
    letter.NomLettre = u"Julie Marchand (IR)";
    letter.Corps = {
        u"Votre annonce parue sur #Origine# a retenu toute mon attention et je vous propose ma "
        u"candidature au poste de #Intitule#.",
        u"Actuellement #Poste# chez #LastSociete#, j'ai acquis une solide pratique de #Domaine# et "
        u"maîtrise #competences#.",
        u"Votre entreprise m'attire par la place donnée à l'information des équipes. Sérieuse et "
        u"motivée, je souhaite y développer mes compétences.",
        u"Je me tiens à votre disposition pour un entretien au cours duquel je vous préciserai mon "
        u"parcours.",
        u"Je vous prie d'agréer, #Titre#, l'expression de mes salutations distinguées."};
    letter.InitLettre("CV/Assistante Com.dat");
    letter.Competences = u"la rédaction, la publication web et la vidéo";
    letter.CvListVisible = true;
    letter.ToggleMedium(Printed);
  });
  photographer.Take(u"lettre");
  window.Do([&] { letter.ToggleMedium(Mail); });
  window.findChild<QPlainTextEdit*>(QStringLiteral("Text1"))->insertPlainText(QStringLiteral("Bonjour,\n"));
  window.Do([&] { letter.saveFailed = true; });
  photographer.Take(u"lettre-courriel");
  shell.Unload(LetterForm);
}

// The page of an advertisement, as a site would show it.
constexpr TextView SamplePage =
    u"data:text/html;charset=utf-8,<body style='font:14px sans-serif;margin:24px'><h1>Chargée de "
    u"communication interne</h1><p>Société : Valmont Énergie</p><p>Référence : CI-2026-114</p><p>Contrat : "
    u"CDI</p><p>Lieu : Lyon</p><p>Salaire : 32000 euros</p><p>Profil : expérience de trois ans</p>"
    u"<p>Postuler : CV et lettre</p></body>";

void PhotographBrowser(Desktop& desktop, Photographer photographer) {
  FormCandWindow& window = *desktop.Candidatures().Window();
  FormCandWeb& web = desktop.Candidatures().Web();
  constexpr int UntilThePageIsRated = 2500;
  window.Do([&] { desktop.Candidatures().Form().RunAction(DetailAction::ShowBrowser); });
  desktop.Windows().Wait(UntilThePageIsRated);
  photographer.Take(u"navigateur-depart");
  window.Do([&] {
    desktop.Candidatures().Form().ShowAddress(SamplePage);
    web.FollowAddress();
  });
  desktop.Windows().Wait(UntilThePageIsRated);
  window.Do([&] { web.BringLinkVisible = true; });
  photographer.Take(u"navigateur");
  window.Do([&] { web.ToggleSiteList(); });
  photographer.Take(u"navigateur-sites", window.findChild<QWidget*>(QStringLiteral("List1")));
  window.Do([&] { web.CloseSiteList(); });
  window.Do([&] { desktop.Candidatures().Pages().Navigate(u"file:///"); });
  photographer.Take(u"navigateur-avis");
}

// What stands over the main window: the backup, the advice on printing, the menus of the slots.
void PhotographSmallForms(Desktop& desktop, const Theme& theme, Photographer photographer) {
  QtShell& shell = desktop.Windows();
  shell.Show(LoadSaveForm);
  photographer.Take(u"sauver", shell.WindowOf(LoadSaveForm));
  desktop.Backup().Form().busy = true;
  desktop.Backup().Form().progress = {412, 1006, 96'000'000, 214'000'000};
  static_cast<BackupWindow*>(shell.WindowOf(LoadSaveForm))->Refresh();
  photographer.Take(u"sauver-copie", shell.WindowOf(LoadSaveForm));
  desktop.Backup().Form().busy = false;
  shell.Unload(LoadSaveForm);
  shell.Show(PrintAdviceForm);
  photographer.Take(u"mise-en-page", shell.WindowOf(PrintAdviceForm));
  shell.Unload(PrintAdviceForm);
  HeaderBar& header = desktop.Main().Header();
  for (const auto& [slot, menu, name] :
       {std::tuple{0, u"MenuCV", u"menu-cv"}, std::tuple{8, u"MenuLettre", u"menu-lettre"},
        std::tuple{10, u"MenuCandidature", u"menu-candidature"}}) {
    header.OnSlotClick(static_cast<std::size_t>(slot));
    QMenu* shown = desktop.Library().Menus().Menu(menu);
    photographer.Take(name, shown);
    shown->close();
  }
  QTimer::singleShot(0, &desktop.Main(), [&photographer] {
    auto* files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    files->setViewMode(QFileDialog::Detail);
    photographer.Take(u"fichiers", files);
    files->reject();
  });
  static_cast<void>(AskForFile(&desktop.Main(), QFileDialog::AcceptOpen, QStringLiteral("Fichiers"),
                               QDir::currentPath(), QStringLiteral("Tous les fichiers (*)")));
  AboutBox about(theme, &desktop.Main());
  photographer.Take(u"a-propos", &about);
  UserGuideWindow guide(theme, &desktop.Main());
  photographer.Take(u"guide", &guide);
}

void PhotographSending(Desktop& desktop, Photographer photographer) {
  QtShell& shell = desktop.Windows();
  std::ofstream("Lettres/Julie Marchand (ER).dat")
      << "Nom=Marchand\r\nPr\xE9nom=Julie\r\nEmail=julie.marchand@mail.example\r\nText1=#Titre# "
         "#NomContact#,<N><N>"
         "Votre annonce parue sur #Origine# a retenu toute mon attention et je vous propose ma candidature "
         "au "
         "poste de #Intitule#.<N>Je vous prie d'agr\xE9"
         "er, #Titre#, l'expression de mes salutations distingu\xE9"
         "es.\r\n";
  shell.Show(ApplyForm);
  photographer.Take(u"postuler", shell.WindowOf(ApplyForm));
  shell.Unload(ApplyForm);
  desktop.Cv().OpenFile(u"Marchand Julie.dat");
  shell.Show(ConvertForm);
  photographer.Take(u"convertir", shell.WindowOf(ConvertForm));
  shell.Unload(ConvertForm);
  shell.Unload(EditorForm);
}

void PhotographForms(Desktop& desktop, const Theme& theme, Photographer photographer) {
  QtShell& shell = desktop.Windows();
  constexpr int UntilTheRowsStand = 250;
  shell.Wait(UntilTheRowsStand);
  photographer.Take(u"accueil");
  shell.Show(CandidatureForm);
  FormCandWindow& window = *desktop.Candidatures().Window();
  photographer.Take(u"candidatures-vide");
  window.Do([&] { desktop.Candidatures().Form().ChargerCandidature(DetailedSample); });
  window.List().Tree().setCurrentIndex(window.List().Tree().Model().IndexOf(u"s6"));
  photographer.Take(u"candidatures-sans-navigateur");
  window.Do([&] { desktop.Candidatures().Form().ShowWebPane(); });
  photographer.Take(u"candidatures");
  window.Do([&] { desktop.Candidatures().Form().ToggleStatusList(); });
  photographer.Take(u"candidatures-statuts");
  window.Do([&] { desktop.Candidatures().Form().CloseStatusList(); });
  PhotographBrowser(desktop, photographer);
  PhotographLetters(desktop, photographer);
  PhotographSending(desktop, photographer);
  shell.Show(StatisticsForm);
  photographer.Take(u"statistiques", shell.WindowOf(StatisticsForm));
  shell.Unload(StatisticsForm);
  desktop.Main().Header().OnPrint();
  constexpr int UntilThePageStands = 1500;
  shell.Wait(UntilThePageStands);
  photographer.Take(u"liste-apercu", desktop.Reports().Preview().Window());
  delete desktop.Reports().Preview().Window();
  PhotographCv(desktop, photographer);
  PhotographSmallForms(desktop, theme, photographer);
}

// How a user sees the program.
struct Sight {
  const char16_t* folder;
  QSize size;
  double text;
  Theme::Palette palette;
};

// What a window of the largest size leaves of the screen is its title bar.
constexpr std::array<Sight, 8> Sights{{
    {u"", {1280, 800}, 1, Theme::Palette::Light},
    {u"", {1280, 800}, 1, Theme::Palette::Dark},
    {u"1024x768", {1024, 728}, 1, Theme::Palette::Light},
    {u"1280x720", {1280, 680}, 1, Theme::Palette::Light},
    {u"1366x768", {1366, 728}, 1, Theme::Palette::Light},
    {u"960x540", {960, 500}, 1, Theme::Palette::Light},
    {u"1024x768-texte-150", {1024, 728}, 1.5, Theme::Palette::Light},
    {u"1280x720-texte-150", {1280, 680}, 1.5, Theme::Palette::Light},
}};

// Each run begins with the files as they are laid down.
bool Photograph(const Sight& sight, const QString& folder) {
  const QTemporaryDir scratch;
  const SampleClock clock;
  const SampleEnvironment environment(FromQt(scratch.path()));
  const std::filesystem::path workspace = workspace_paths::UsualDataFolder(environment);
  InstallerDossier(workspace, TALVOR_DATA_FOLDER);
  FillFiles(workspace);
  std::filesystem::current_path(workspace);
  FillDatabase(clock);
  QtDialogs dialogs;
  Theme theme;
  theme.SetTextScale(sight.text);
  theme.Apply(sight.palette);
  Desktop desktop(theme, environment, clock, dialogs);
  if (!desktop.StartAtOnce()) return false;
  desktop.Main().resize(sight.size);
  QDir().mkpath(folder);
  const bool dark = sight.palette == Theme::Palette::Dark;
  PhotographForms(
      desktop, theme,
      Photographer(desktop, folder, dark ? QStringLiteral("-sombre.png") : QStringLiteral(".png")));
  desktop.Windows().Unload(CandidatureForm);
  return true;
}

int Run(const QString& folder, const QString& only) {
  const QString start = QDir::currentPath();
  for (const Sight& sight : Sights) {
    const QString name = QString::fromUtf16(sight.folder);
    if (!only.isEmpty() && name != only) continue;
    const bool drawn = Photograph(sight, folder + QLatin1Char('/') + name);
    QDir::setCurrent(start);
    if (!drawn) return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
  // Chromium refuses its sandbox to the administrator.
  if (::geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
  const Application application(argc, argv);
  if (argc < 2 || argc > 3) {
    std::cerr << "usage : talvor_captures DOSSIER [TAILLE]\n";
    return 2;
  }
  return Run(QDir(QString::fromLocal8Bit(argv[1])).absolutePath(),
             argc == 3 ? QString::fromLocal8Bit(argv[2]) : QString());
}
