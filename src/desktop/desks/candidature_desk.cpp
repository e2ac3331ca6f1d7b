#include "desktop/desks/candidature_desk.h"

#include <QPlainTextEdit>

#include "platform/twips.h"

namespace talvor {

struct CandidatureDesk::Models {
  Models(const DeskSurroundings& around, DocumentBrowser& browser, Clipboard& clipboard,
         const Documents& documents)
      : form(around.principale, around.clock, around.dialogs, around.shell, browser),
        capture(form, around.clock, browser),
        web(form, capture, {around.principale, around.dialogs, around.shell, browser, clipboard, documents}) {
  }

  FormCand form;
  FormCandCapture capture;
  FormCandWeb web;
};

CandidatureDesk::CandidatureDesk(const DeskSurroundings& around)
    : around_(around),
      browser_(around.dialogs),
      popup_(around.theme, {u"MenuItemCand"}),
      menus_(around.principale, around.shell) {
  MakeModels();
  OfferWays();
  ConnectMenus();
  QtShell::Form& page =
      around_.shell.Page(CandidatureForm, [this](QWidget* parent) { return MakeWindow(parent); });
  page.loaded = [this] { Loaded(); };
  // The window looks at the model until it is gone, so it goes at once with its timers.
  page.unloaded = [this] { delete window_.data(); };
}

FormCand& CandidatureDesk::Form() { return models_->form; }

FormCandWeb& CandidatureDesk::Web() { return models_->web; }

void CandidatureDesk::MakeModels() {
  models_ = std::make_shared<Models>(around_, browser_, clipboard_, documents_);
  models_->web.askApplyForm = [&ways = around_.ways] { return ways.applyTexts(); };
  models_->form.openApplyForm = [&ways = around_.ways](const ApplyRequest& request) { ways.apply(request); };
}

QWidget* CandidatureDesk::MakeWindow(QWidget* parent) {
  MakeModels();
  window_ =
      new FormCandWindow(models_->form, models_->capture, models_->web, browser_, around_.theme, parent);
  window_->models = models_;
  window_->OnActed = around_.ways.refresh;
  window_->OnItemMenu = [this](QPoint place) { OpenItemMenu(place); };
  return window_;
}

void CandidatureDesk::Loaded() {
  window_->Do([&] {
    models_->form.Charger();
    models_->web.Charger();
  });
  window_->Web().FillSites(models_->web.Sites);
}

void CandidatureDesk::OpenItemMenu(QPoint place) {
  popup_.Enable(u"MenuPostuler", models_->form.ApplyItemEnabled);
  popup_.OpenAt(u"MenuItemCand", place);
}

void CandidatureDesk::InWindow(const std::function<void()>& action) {
  if (window_) window_->Do(action);
}

void CandidatureDesk::OfferWays() {
  DeskWays& ways = around_.ways;
  ways.formCand = [this]() -> FormCand& { return models_->form; };
  ways.candidatureTexts = [this] {
    CandidatureTexts texts = TextsOf(models_->form);
    texts.Text1 = models_->web.OutsideAddress;
    return texts;
  };
  ways.showWebPane = [this] { InWindow([this] { models_->form.ShowWebPane(); }); };
  ways.goToStartPage = [this] { InWindow([this] { browser_.Navigate(around_.principale.AdresseWeb); }); };
  ways.candidatureChanged = [this] { InWindow([] {}); };
  ways.readCandidatures = [this] { InWindow([this] { models_->form.InitListe(); }); };
  ways.candidatureMenu = [this](TextView item) { menus_.Choose(item); };
}

void CandidatureDesk::ConnectMenus() {
  popup_.OnChosen = [this](TextView item) {
    around_.ways.keepTyping();
    menus_.Choose(item);
    around_.ways.refresh();
    around_.ways.refreshHome();
  };
  const auto inWindow = [this](void (*action)(Models&)) {
    return [this, action] { InWindow([this, action] { action(*models_); }); };
  };
  CandidatureMenus::Ways& ways = menus_.ways;
  ways.hauteurDescription = [this] {
    return window_ ? window_->Detail().Description().height() * TwipsPerPixel : 0;
  };
  ways.montrerCadreWeb = inWindow([](Models& models) { models.form.ShowWebPane(); });
  ways.naviguerAccueil = inWindow([](Models& models) { models.web.GoToStartPage(); });
  ways.imprimerListe = [this] { around_.ways.printReport(ReportMode::Liste); };
  ways.justificatif = [this] { around_.ways.printReport(ReportMode::Justificatif); };
  ways.toutSupprimer = [this] {
    // The form need not be open.
    models_->form.MenuSupprimer();
    if (window_) window_->Refresh();
  };
  ways.consulterInternet = inWindow([](Models& models) { models.web.OpenAdvertisement(); });
  ways.consulterOrigine = inWindow([](Models& models) { models.web.ConsulterOrigine(); });
  ways.postuler = [this] { around_.ways.applyFromMenu(); };
  ways.supprimerCand = inWindow([](Models& models) { models.form.MenuSupprimerCand(); });
}

void CandidatureDesk::Leave() {
  if (window_) window_->Tick3000();
}

void CandidatureDesk::Close() {
  Leave();
  around_.shell.Unload(CandidatureForm);
}

void CandidatureDesk::CloseDocuments() {
  Leave();
  // A candidature that has no row yet waits for one in the new data; the list closes its handle.
  InWindow([this] {
    if (!models_->form.Num.empty()) models_->form.ViderDetail();
    models_->form.InitListe();
  });
}

void CandidatureDesk::Stop() {
  if (window_) window_->StopTimers();
}

}  // namespace talvor
