#include "desktop/desktop.h"

#include <QGuiApplication>
#include <QScreen>

#include "app/start_up.h"
#include "desktop/about_box.h"
#include "desktop/guide_panel.h"
#include "desktop/stat_window.h"
#include "workspace/document_keeping.h"

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
  main_->OnClosed = [this] {
    if (letterWindow_) formLettre_.Timer1();
    // Waits of this form end with it; the event loop alone would leave them turning.
    shell_.Unload(u"FormCand");
    QCoreApplication::quit();
  };
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
  shell_.Register(u"Principale", {.place = QtShell::Place::Over,
                                  .make = [this](QWidget*) -> QWidget* { return main_.get(); }});
  RegisterHome();
  RegisterCandidatures();
  RegisterLetters();
  RegisterReports();
  RegisterCv();
  RegisterSending();
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
    formCandWindow_ =
        new FormCandWindow(*formCand_, candidatures_->capture, candidatures_->web, browser_, theme_, parent);
    formCandWindow_->models = candidatures_;
    formCandWindow_->OnActed = [this] { RefreshMain(); };
    formCandWindow_->OnMenuPostuler = [this] { sending_->OpenFromMenu(); };
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
  shell_.Register(u"FormCand", form);
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

  formLettre_.OuvrirDocument = [this](const std::filesystem::path& document) {
    const Text name = FromUtf8(document.filename().string()).value_or(Text{});
    const auto target = FromUtf8(document.string());
    if (!target || !documents_.Open(*target))
      dialogs_.Tell(u"Aucun programme n'a pu ouvrir le fichier «\u00A0" + name + u"\u00A0».");
  };
  assistantTexte_.commands.nouvelleLettre = [this] { NewLetter(); };
  assistantTexte_.commands.ouvrirLettre = [this](TextView file) { OpenLetter(file); };
  main_->Header().OnSlotOpen = [this, others = main_->Header().OnSlotOpen](std::size_t slot) {
    if (slot < Principale::FirstLetterSlot || slot >= Principale::CandidatureSlot) return others(slot);
    const MenuSlot& chosen = principale_.ImageMenu[slot];
    if (!chosen.visible) return;
    if (chosen.toolTip.empty()) return NewLetter();
    OpenLetter(chosen.toolTip);
  };
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

void Desktop::RegisterSending() {
  sending_.emplace(SendingDesk::Program{.principale = principale_,
                                        .formCand = [this]() -> FormCand& { return *formCand_; },
                                        .tags =
                                            [this] {
                                              CandidatureTexts texts = TextsOf(*formCand_);
                                              texts.Text1 = candidatures_->web.Text1;
                                              return texts;
                                            },
                                        .browser = browser_,
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
  if (letterWindow_) letterWindow_->StopTimer();
  sending_->StopTimer();
  main_->setEnabled(false);
}

}  // namespace talvor
