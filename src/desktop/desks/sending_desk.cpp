#include "desktop/desks/sending_desk.h"

#include <functional>
#include <utility>

#include <QCoreApplication>
#include <QGuiApplication>

#include "desktop/widgets/text_edge.h"
#include "workspace/systeme.h"

namespace talvor {
namespace {

void ShowWaitCursor(bool shown) {
  if (shown)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

}  // namespace

SendingDesk::SendingDesk(const DeskSurroundings& around) : around_(around), mail_(around.environment) {
  wordProcessor_.whileWaiting = [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
  documents_.OnRefused = [this](TextView target) { TellNotOpened(target, around_.dialogs); };
  OfferWays();
  RegisterForms();
}

void SendingDesk::MakeApply() {
  apply_.emplace(FormPostuler::Surroundings{.principale = around_.principale,
                                            .formCand = around_.ways.formCand,
                                            .tags = around_.ways.candidatureTexts,
                                            .clock = around_.clock,
                                            .environment = around_.environment,
                                            .dialogs = around_.dialogs,
                                            .shell = around_.shell,
                                            .mail = mail_,
                                            .chargerFichierCV = around_.ways.openCv,
                                            .waitCursor = ShowWaitCursor});
}

QWidget* SendingDesk::MakeApplyWindow(QWidget* parent) {
  MakeApply();
  applyWindow_ = new ApplyWindow(*apply_, around_.theme, parent);
  const FormCand& form = around_.ways.formCand();
  const Text company = form.Societe.empty() ? Text{} : u", " + form.Societe;
  applyWindow_->setWindowTitle(form.Intitule.empty()
                                   ? QObject::tr("Postuler")
                                   : QObject::tr("Postuler\u00A0: %1").arg(ToQt(form.Intitule + company)));
  // A send changes the candidature that its form shows.
  applyWindow_->OnActed = [&ways = around_.ways] {
    ways.candidatureChanged();
    ways.refresh();
  };
  applyWindow_->OnClosed = [this] { around_.shell.Unload(ApplyForm); };
  return applyWindow_;
}

QWidget* SendingDesk::MakeConvertWindow(QWidget* parent) {
  convert_.emplace(CvConversion::Surroundings{.editor = around_.ways.cvEditor(),
                                              .environment = around_.environment,
                                              .shell = around_.shell,
                                              .dialogs = around_.dialogs,
                                              .documents = documents_,
                                              .wordProcessor = wordProcessor_,
                                              .printer = printer_,
                                              .waitCursor = ShowWaitCursor});
  convert_->Charger();
  auto* window = new ConvertWindow(*convert_, around_.theme, parent);
  window->OnClosed = [this] { around_.shell.Unload(ConvertForm); };
  return window;
}

void SendingDesk::RegisterForms() {
  QtShell& shell = around_.shell;
  QtShell::Form& apply = shell.Over(ApplyForm, [this](QWidget* parent) { return MakeApplyWindow(parent); });
  apply.loaded = [this] {
    applyWindow_->Do([this] { apply_->Charger(); });
    if (applyWindow_) applyWindow_->Tick1000();
  };
  apply.unloaded = [this] { Stop(); };
  shell.Over(ConvertForm, [this](QWidget* parent) { return MakeConvertWindow(parent); });
}

void SendingDesk::OfferWays() {
  DeskWays& ways = around_.ways;
  ways.apply = [this](const ApplyRequest& request) { OpenFromFormCand(request); };
  ways.applyFromMenu = [this] { OpenFromMenu(); };
  ways.applyTexts = [this] {
    const FormPostuler* form = Apply();
    return form == nullptr ? ApplyTexts{} : ApplyTexts{form->Email, form->Texte};
  };
}

void SendingDesk::CloseDocuments() {
  around_.shell.Unload(ApplyForm);
  around_.shell.Unload(ConvertForm);
}

// The load begins the form anew in its place, so that it comes before the form is asked.
void SendingDesk::Review(const std::function<void()>& wayIn) {
  LoadForReview(Apply(), around_.shell);
  if (!applyWindow_) return;
  applyWindow_->Do(wayIn);
  // The marks of the letter that has been replaced would stand for a second.
  if (applyWindow_) applyWindow_->Tick1000();
}

void SendingDesk::OpenFromFormCand(const ApplyRequest& request) {
  Review([&] { apply_->OpenFromFormCand(request); });
}

void SendingDesk::OpenFromMenu() {
  Review([this] { apply_->OpenFromMenu(); });
}

void SendingDesk::Stop() {
  if (applyWindow_) applyWindow_->StopTimer();
}

FormPostuler* SendingDesk::Apply() {
  return around_.shell.WindowOf(ApplyForm) == nullptr ? nullptr : &*apply_;
}

}  // namespace talvor
