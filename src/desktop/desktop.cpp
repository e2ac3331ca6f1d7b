#include "desktop/desktop.h"

#include <QGuiApplication>
#include <QScreen>

#include "app/start_up.h"
#include "desktop/about_box.h"
#include "desktop/guide_panel.h"
#include "desktop/stat_window.h"

namespace talvor {

Desktop::Desktop(const Theme& theme, const Environment& environment, const Clock& clock, Dialogs& dialogs)
    : theme_(theme),
      environment_(environment),
      clock_(clock),
      dialogs_(dialogs),
      depart_(dialogs, shell_),
      cv_({principale_, shell_, theme, environment, clock, dialogs, pickers_}),
      main_(std::make_unique<MainWindow>(principale_, shell_, theme)) {
  MakeFormCand();
  RegisterForms();
  main_->OnClosed = [] { QCoreApplication::quit(); };
  main_->OnHelp = [this] {
    if (!principale_.InfoGuide.empty()) principale_.AfficherGuide(Text{principale_.InfoGuide});
  };
}

Desktop::~Desktop() {
  // The windows look at the models: they go first.
  main_.reset();
}

void Desktop::MakeFormCand() {
  formCand_.emplace(principale_, clock_, dialogs_, shell_, browser_);
  capture_.emplace(*formCand_, clock_, browser_);
}

void Desktop::RefreshMain() {
  if (main_) main_->Refresh();
}

void Desktop::RegisterForms() {
  shell_.Register(u"Principale", {.place = QtShell::Place::Over,
                                  .make = [this](QWidget*) -> QWidget* { return main_.get(); }});
  RegisterHome();
  RegisterCandidatures();
  RegisterReports();
  RegisterCv();
  RegisterGuide();
  RegisterSplash();
  shell_.Register(u"APropos", {.place = QtShell::Place::Over, .make = [this](QWidget* parent) -> QWidget* {
                                 auto* about = new AboutBox(theme_, parent);
                                 about->setAttribute(Qt::WA_DeleteOnClose);
                                 return about;
                               }});
}

void Desktop::RegisterHome() {
  shell_.Register(u"AssistantTexte",
                  {.onLoad = QtShell::OnLoad::Shown, .make = [this](QWidget* parent) -> QWidget* {
                     assistantTexte_.Charger();
                     homeWindow_ = new HomeWindow(assistantTexte_, theme_, parent);
                     homeWindow_->OnActed = [this] { RefreshMain(); };
                     return homeWindow_;
                   }});
  assistantTexte_.commands.rechercherOffres = [this] {
    if (formCandWindow_) formCandWindow_->Do([&] { formCand_->CadreWebVisible = true; });
  };
  assistantTexte_.commands.naviguerAccueil = [this] {
    if (formCandWindow_) formCandWindow_->Do([&] { browser_.Navigate(principale_.AdresseWeb); });
  };
}

void Desktop::RegisterCandidatures() {
  QtShell::Form form;
  form.make = [this](QWidget* parent) -> QWidget* {
    MakeFormCand();
    formCandWindow_ = new FormCandWindow(*formCand_, *capture_, browser_, theme_, parent);
    formCandWindow_->OnActed = [this] { RefreshMain(); };
    browser_.makeView = [this] { return formCandWindow_->Web().MakeView(); };
    return formCandWindow_;
  };
  form.loaded = [this] { formCandWindow_->Do([&] { formCand_->Charger(); }); };
  form.unloaded = [this] {
    // The window looks at the model until it is gone, so it goes at once with its timers.
    delete formCandWindow_.data();
    browser_.makeView = {};
    browser_.Forget();
  };
  shell_.Register(u"FormCand", form);
}

void Desktop::RegisterReports() {
  shell_.Register(u"FormStat", {.place = QtShell::Place::Over, .make = [this](QWidget* parent) -> QWidget* {
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
  pickers_.SetFrame(main_.get());
  cv_.Register();
  cv_.OnActed = [this] { RefreshMain(); };
  assistantTexte_.commands.ouvrirCv = [this](TextView file) { cv_.OpenFile(file); };
  // The other slots stay with the main window.
  HeaderBar& header = main_->Header();
  header.OnSlotOpen = [this, others = header.OnSlotOpen](std::size_t slot) {
    if (slot < Principale::CvSlots)
      cv_.OpenSlot(slot);
    else
      others(slot);
  };
}

void Desktop::RegisterGuide() {
  shell_.Register(u"Guide", {.place = QtShell::Place::Over,
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
  shell_.Register(u"Depart", {.place = QtShell::Place::Over, .make = [this](QWidget*) -> QWidget* {
                                auto* splash = new SplashWindow(depart_, theme_, nullptr);
                                splash->OnShorten = [this] { depart_.Abreger(); };
                                return splash;
                              }});
  shell_.Register(
      u"Ombre",
      {.place = QtShell::Place::Over, .onLoad = QtShell::OnLoad::Shown, .make = [this](QWidget*) -> QWidget* {
         const QWidget* splash = shell_.WindowOf(u"Depart");
         return new ShadowWindow(splash ? splash->geometry() : QRect(), nullptr);
       }});
}

bool Desktop::LoadPrincipale() {
  if (ChargerPrincipale(principale_, environment_, clock_, dialogs_) != StartOutcome::Ready) return false;
  RefreshMain();
  shell_.Show(u"Principale");
  shell_.PumpEvents();
  return true;
}

bool Desktop::Start() {
  const QSize screen = QGuiApplication::primaryScreen()->size();
  shell_.Show(u"Depart");
  return depart_.Charger({screen.width(), screen.height()},
                         {.prepareFolder = [this] { PreparerDossier(environment_); },
                          .showPrincipale = [this] { return LoadPrincipale(); },
                          .principaleWidth = [this] { return main_->width(); },
                          .maximise = [this] { main_->showMaximized(); },
                          .onChange =
                              [this] {
                                if (auto* splash = static_cast<SplashWindow*>(shell_.WindowOf(u"Depart")))
                                  splash->Refresh();
                                if (QWidget* shadow = shell_.WindowOf(u"Ombre"))
                                  shadow->setWindowOpacity(depart_.OpaciteOmbre / 255.0);
                              }});
}

bool Desktop::StartAtOnce() {
  PreparerDossier(environment_);
  if (!LoadPrincipale()) return false;
  shell_.Load(u"AssistantTexte");
  return true;
}

void Desktop::Stop() {
  if (formCandWindow_) formCandWindow_->StopTimers();
  main_->setEnabled(false);
}

}  // namespace talvor
