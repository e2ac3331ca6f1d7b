#include "desktop/desktop.h"

#include <filesystem>

#include <QGuiApplication>
#include <QScreen>

#include "app/start_up.h"
#include "base/line_file.h"
#include "desktop/platform/printing.h"
#include "desktop/shell/about_box.h"
#include "desktop/shell/advice_box.h"
#include "desktop/shell/assistant_figure.h"
#include "desktop/shell/backup_window.h"
#include "desktop/shell/guide_panel.h"
#include "desktop/shell/stat_window.h"
#include "desktop/shell/user_guide.h"
#include "workspace/document_keeping.h"
#include "workspace/systeme.h"

namespace talvor {

// The form of the candidatures with its two other sides.
struct Desktop::CandidatureModels {
  CandidatureModels(Principale& principale, const Clock& clock, Dialogs& dialogs, Shell& shell,
                    DocumentBrowser& browser, Clipboard& clipboard, const Documents& documents)
      : form(principale, clock, dialogs, shell, browser),
        capture(form, clock, browser),
        web(form, capture, {principale, dialogs, shell, browser, clipboard, documents}) {}

  FormCand form;
  FormCandCapture capture;
  FormCandWeb web;
};

Desktop::Desktop(const Theme& theme, const Environment& environment, const Clock& clock, Dialogs& dialogs,
                 Pickers* pickers)
    : theme_(theme),
      environment_(environment),
      clock_(clock),
      dialogs_(dialogs),
      depart_(dialogs, shell_),
      pickers_(pickers == nullptr ? ownPickers_ : *pickers),
      cv_({principale_, shell_, theme, environment, clock, dialogs, pickers_}),
      library_({principale_, shell_, theme, environment, dialogs, pickers_, documents_}),
      backup_({principale_, shell_, dialogs, pickers_, clock}),
      main_(std::make_unique<MainWindow>(principale_, shell_, theme)) {
  MakeFormCand();
  RegisterForms();
  main_->OnClosed = [this] {
    KeepTyping();
    if (formCandWindow_) formCandWindow_->Tick3000();
    // Waits of these forms end with them; the event loop alone would leave them turning.
    backup_.Annuler();
    shell_.Unload(LoadSaveForm);
    shell_.Unload(CandidatureForm);
    FinishPrinting();
    QCoreApplication::quit();
  };
  main_->OnUserGuide = [this] { shell_.Show(UserGuideForm); };
  main_->OnHelp = [this] {
    if (!principale_.InfoGuide.empty()) principale_.AfficherGuide(Text{principale_.InfoGuide});
  };
}

Desktop::~Desktop() {
  // The windows look at the models: they go first.
  main_.reset();
}

void Desktop::MakeFormCand() {
  candidatures_ = std::make_shared<CandidatureModels>(principale_, clock_, dialogs_, shell_, browser_,
                                                      clipboard_, documents_);
  formCand_ = &candidatures_->form;
  candidatures_->web.FormPostuler = [this] {
    const FormPostuler* form = sending_->Apply();
    return form == nullptr ? ApplyTexts{} : ApplyTexts{form->Email, form->Texte};
  };
  formCand_->OuvrirPostuler = [this](const ApplyRequest& request) { sending_->OpenFromFormCand(request); };
}

FormCandWeb& Desktop::Web() { return candidatures_->web; }

void Desktop::RefreshMain() {
  if (main_) main_->Refresh();
}

void Desktop::RegisterForms() {
  shell_.Register(MainForm, {.place = QtShell::Place::Over,
                             .make = [this](QWidget*) -> QWidget* { return main_.get(); }});
  RegisterHome();
  RegisterCandidatures();
  RegisterLetters();
  RegisterReports();
  RegisterCv();
  RegisterSending();
  RegisterGuide();
  RegisterSplash();
  RegisterLibrary();
  RegisterCandidatureMenus();
  RegisterBackup();
  RegisterSmallForms();
}

void Desktop::RegisterSmallForms() {
  shell_.Register(AboutForm, {.place = QtShell::Place::Over, .make = [this](QWidget* parent) -> QWidget* {
                                auto* about = new AboutBox(theme_, parent);
                                about->setAttribute(Qt::WA_DeleteOnClose);
                                about->OnGuide = [this] { shell_.Show(UserGuideForm); };
                                return about;
                              }});
  shell_.Register(UserGuideForm, {.place = QtShell::Place::Over, .make = [this](QWidget* parent) -> QWidget* {
                                    auto* guide = new UserGuideWindow(theme_, parent);
                                    guide->setAttribute(Qt::WA_DeleteOnClose);
                                    return guide;
                                  }});
  shell_.Register(PrintAdviceForm,
                  {.place = QtShell::Place::Over, .make = [this](QWidget* parent) -> QWidget* {
                     return new AdviceBox(miseEnPage_, theme_, parent);
                   }});
  miseEnPage_.previsualiser = [this] { cv_.Preview(); };
  shell_.Register(AssistantForm, {.place = QtShell::Place::Over,
                                  .onLoad = QtShell::OnLoad::Shown,
                                  .make = [this](QWidget* parent) -> QWidget* {
                                    return new AssistantFigure(assistant_, theme_,
                                                               homeWindow_ ? homeWindow_->Road() : parent);
                                  }});
}

// What was typed in the editors reaches the disk.
void Desktop::KeepTyping() {
  if (letterWindow_) letterWindow_->Tick1000();
  cv_.KeepTyping();
}

void Desktop::RegisterLibrary() {
  library_.Connect(main_->Header());
  library_.BeforeActing = [this] { KeepTyping(); };
  main_->Header().OnMenu = [this, menu = main_->Header().OnMenu] {
    KeepTyping();
    if (formCandWindow_) formCandWindow_->Tick3000();
    menu();
  };
  library_.OnActed = [this] {
    RefreshMain();
    if (homeWindow_) homeWindow_->Refresh();
  };
  FileLibrary::Ways& ways = library_.Library().ways;
  ways.ouvrirCV = [this](TextView name) { cv_.OpenFile(name); };
  ways.ouvrirLettre = [this](TextView name) { OpenLetter(name); };
  ways.nouvelleLettre = [this] { NewLetter(); };
  ways.imprimerCV = [this] { cv_.Print(); };
  assistantTexte_.commands.rattacherCv = [this] { library_.Library().RattacherCV(); };
  main_->Header().OpenFile = [this](TextView page) {
    return (page == LetterForm ? formLettre_.NomLettre : cv_.Form().NomCV) + u".dat";
  };
}

void Desktop::RegisterCandidatureMenus() {
  CandidatureMenus::Ways& ways = library_.Candidatures().ways;
  const auto inWindow = [this](auto action) {
    return [this, action] {
      if (formCandWindow_) formCandWindow_->Do([&] { action(*candidatures_); });
    };
  };
  ways.hauteurDescription = [this] {
    const auto* description = formCandWindow_->findChild<QWidget*>(QStringLiteral("Description"));
    return description == nullptr ? 0 : description->height() * TwipsPerPixel;
  };
  ways.montrerCadreWeb = inWindow([](CandidatureModels& cand) { cand.form.ShowWebPane(); });
  ways.naviguerAccueil = inWindow([](CandidatureModels& cand) { cand.web.ClicImage4(); });
  ways.imprimerListe = [this] { reports_.ImprimerListe(ReportMode::Liste); };
  ways.justificatif = [this] { reports_.ImprimerListe(ReportMode::Justificatif); };
  ways.toutSupprimer = [this] {
    // The form need not be open.
    formCand_->MenuSupprimer();
    if (formCandWindow_) formCandWindow_->Refresh();
  };
  ways.consulterInternet = inWindow([](CandidatureModels& cand) { cand.web.ClicWww(); });
  ways.consulterOrigine = inWindow([](CandidatureModels& cand) { cand.web.ConsulterOrigine(); });
  ways.postuler = [this] { sending_->OpenFromMenu(); };
  ways.supprimerCand = inWindow([](CandidatureModels& cand) { cand.form.MenuSupprimerCand(); });
}

void Desktop::RegisterBackup() {
  shell_.Register(LoadSaveForm, {.place = QtShell::Place::Over, .make = [this](QWidget* parent) -> QWidget* {
                                   auto* window = new BackupWindow(backup_, theme_, parent);
                                   backup_.OnProgress = [shown = QPointer<BackupWindow>(window)] {
                                     if (shown) shown->Refresh();
                                   };
                                   window->OnActed = [this] {
                                     if (formCandWindow_)
                                       formCandWindow_->Do([&] { formCand_->InitListe(); });
                                     RefreshMain();
                                   };
                                   return window;
                                 }});
  backup_.fermerDocuments = [this] { CloseDocuments(); };
}

// The data is about to change under the forms: what was typed is saved where it belongs, and no form
// goes on with a document that is no longer there.
void Desktop::CloseDocuments() {
  cv_.KeepTyping();
  shell_.Unload(EditorForm);
  shell_.Unload(LetterForm);
  shell_.Unload(ApplyForm);
  shell_.Unload(ConvertForm);
  if (!formCandWindow_) return;
  formCandWindow_->Tick3000();
  // A candidature that has no row yet waits for one in the new data; the list closes its handle.
  formCandWindow_->Do([&] {
    if (!formCand_->Num.empty()) formCand_->ViderDetail();
    formCand_->InitListe();
  });
}

void Desktop::RegisterHome() {
  shell_.Register(HomeForm, {.onLoad = QtShell::OnLoad::Shown,
                             .make = [this](QWidget* parent) -> QWidget* {
                               assistantTexte_.Charger();
                               homeWindow_ = new HomeWindow(assistantTexte_, theme_, parent);
                               homeWindow_->OnActed = [this] { RefreshMain(); };
                               return homeWindow_;
                             },
                             // The figure stands in this window.
                             .unloaded = [this] { shell_.Unload(AssistantForm); }});
  assistantTexte_.commands.rechercherOffres = [this] {
    if (formCandWindow_) formCandWindow_->Do([&] { formCand_->ShowWebPane(); });
  };
  assistantTexte_.commands.naviguerAccueil = [this] {
    if (formCandWindow_) formCandWindow_->Do([&] { browser_.Navigate(principale_.AdresseWeb); });
  };
}

void Desktop::RegisterCandidatures() {
  QtShell::Form form;
  form.make = [this](QWidget* parent) -> QWidget* {
    MakeFormCand();
    formCandWindow_ =
        new FormCandWindow(*formCand_, candidatures_->capture, candidatures_->web, browser_, theme_, parent);
    formCandWindow_->models = candidatures_;
    formCandWindow_->OnActed = [this] { RefreshMain(); };
    formCandWindow_->OnItemMenu = [this](QPoint place) {
      library_.OpenItemMenu(place, formCand_->MenuPostulerActif);
    };
    return formCandWindow_;
  };
  form.loaded = [this] {
    formCandWindow_->Do([&] {
      formCand_->Charger();
      candidatures_->web.Charger();
    });
    formCandWindow_->Web().FillSites(candidatures_->web.Sites);
  };
  form.unloaded = [this] {
    // The window looks at the model until it is gone, so it goes at once with its timers.
    delete formCandWindow_.data();
  };
  shell_.Register(CandidatureForm, form);
}

void Desktop::RegisterLetters() {
  QtShell::Form form;
  form.make = [this](QWidget* parent) -> QWidget* {
    formLettre_.Charger();
    letterWindow_ = new LetterWindow(formLettre_, theme_, parent);
    letterWindow_->OnActed = [this] { RefreshMain(); };
    return letterWindow_;
  };
  form.unloaded = [this] {
    // What was typed since the last tick is saved; the model may serve another window at once, so this
    // one goes first.
    formLettre_.Timer1();
    delete letterWindow_.data();
  };
  shell_.Register(LetterForm, form);

  documents_.OnRefused = [this](TextView target) { TellNotOpened(target, dialogs_); };
  formLettre_.OuvrirDocument = [this](const std::filesystem::path& document) {
    OuvrirDocument(TextOf(document).value_or(Text{}), documents_, dialogs_);
  };
  assistantTexte_.commands.nouvelleLettre = [this] { NewLetter(); };
  assistantTexte_.commands.ouvrirLettre = [this](TextView file) { OpenLetter(file); };
}

void Desktop::NewLetter() {
  shell_.Load(LetterForm);
  letterWindow_->Tick1000();  // the letter before keeps what was typed since the last tick
  letterWindow_->NewLetter();
}

void Desktop::OpenLetter(TextView file) {
  const Text name{file};  // the slot may be filled anew meanwhile
  shell_.Load(LetterForm);
  letterWindow_->Tick1000();
  letterWindow_->Do([&] { formLettre_.ChargerFichierLettre(FileIn(workspace_paths::LetterFolder(), name)); });
}

void Desktop::RegisterReports() {
  shell_.Register(StatisticsForm,
                  {.place = QtShell::Place::Over, .make = [this](QWidget* parent) -> QWidget* {
                     formStat_.Charger();
                     auto* window = new StatWindow(formStat_, theme_, parent);
                     window->setAttribute(Qt::WA_DeleteOnClose);
                     return window;
                   }});
  preview_.SetFrame(main_.get());
  main_->Header().OnPrint = [this] { reports_.ImprimerListe(ReportMode::Liste); };
  assistantTexte_.commands.justificatif = [this] { reports_.ImprimerListe(ReportMode::Justificatif); };
}

void Desktop::RegisterCv() {
  ownPickers_.SetFrame(main_.get());
  ownPickers_.CurrentColour = [this] { return QColor(ToQt(cv_.Form().Couleur)); };
  cv_.Register();
  cv_.OnActed = [this] { RefreshMain(); };
  assistantTexte_.commands.ouvrirCv = [this](TextView file) { cv_.OpenFile(file); };
}

void Desktop::RegisterSending() {
  sending_.emplace(SendingDesk::Program{.principale = principale_,
                                        .formCand = [this]() -> FormCand& { return *formCand_; },
                                        .tags =
                                            [this] {
                                              CandidatureTexts texts = TextsOf(*formCand_);
                                              texts.Text1 = candidatures_->web.Text1;
                                              return texts;
                                            },
                                        .cv = cv_,
                                        .shell = shell_,
                                        .theme = theme_,
                                        .environment = environment_,
                                        .clock = clock_,
                                        .dialogs = dialogs_});
  sending_->Register();
  // A send changes the candidature that its form shows.
  sending_->OnActed = [this] {
    if (formCandWindow_) formCandWindow_->Do([] {});
    RefreshMain();
  };
}

void Desktop::RegisterGuide() {
  shell_.Register(GuideForm, {.place = QtShell::Place::Over,
                              .make = [this](QWidget* parent) -> QWidget* {
                                auto* panel = new GuidePanel(theme_, parent);
                                guide_.OnChange = [this, shown = QPointer<GuidePanel>(panel)] {
                                  if (shown) shown->Show(guide_);
                                };
                                return panel;
                              },
                              .loaded = [this] { guide_.Charger(); }});
}

void Desktop::RegisterSplash() {
  shell_.Register(SplashForm, {.place = QtShell::Place::Over, .make = [this](QWidget*) -> QWidget* {
                                 auto* splash = new SplashWindow(depart_, theme_, nullptr);
                                 splash->OnShorten = [this] { depart_.Abreger(); };
                                 return splash;
                               }});
  shell_.Register(
      SplashShadowForm,
      {.place = QtShell::Place::Over, .onLoad = QtShell::OnLoad::Shown, .make = [this](QWidget*) -> QWidget* {
         const QWidget* splash = shell_.WindowOf(SplashForm);
         return new ShadowWindow(splash ? splash->geometry() : QRect(), nullptr);
       }});
}

bool Desktop::LoadPrincipale() {
  if (ChargerPrincipale(principale_, environment_, clock_, dialogs_) != StartOutcome::Ready) return false;
  RefreshMain();
  placeKnown_ = main_->RestorePlace();
  shell_.Show(MainForm);
  shell_.PumpEvents();
  return true;
}

bool Desktop::Start() {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  shell_.Show(SplashForm);
  return depart_.Charger({screen.size().width(), screen.size().height(), screen.devicePixelRatio()},
                         {.prepareFolder = [this] { PreparerDossier(environment_); },
                          .showPrincipale = [this] { return LoadPrincipale(); },
                          .principaleWidth = [this] { return main_->width(); },
                          .maximise =
                              [this] {
                                if (!placeKnown_) main_->showMaximized();
                              },
                          .onChange =
                              [this] {
                                if (auto* splash = static_cast<SplashWindow*>(shell_.WindowOf(SplashForm)))
                                  splash->Refresh();
                                if (QWidget* shadow = shell_.WindowOf(SplashShadowForm))
                                  shadow->setWindowOpacity(depart_.OpaciteOmbre / 255.0);
                              }});
}

bool Desktop::StartAtOnce() {
  PreparerDossier(environment_);
  if (!LoadPrincipale()) return false;
  shell_.Load(HomeForm);
  shell_.Load(AssistantForm);
  return true;
}

void Desktop::Stop() {
  if (formCandWindow_) formCandWindow_->StopTimers();
  if (letterWindow_) letterWindow_->StopTimer();
  formLettre_.Timer1();
  sending_->StopTimer();
  main_->setEnabled(false);
}

}  // namespace talvor
