#include "desktop/sending/sending_desk.h"

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

SendingDesk::SendingDesk(Program program) : program_(std::move(program)), mail_(program_.environment) {
  wordProcessor_.whileWaiting = [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
  documents_.OnRefused = [this](TextView target) { TellNotOpened(target, program_.dialogs); };
}

void SendingDesk::MakeApply() {
  openedFor_ = program_.formCand().Num;
  apply_.emplace(
      FormPostuler::Surroundings{.principale = program_.principale,
                                 .formCand = program_.formCand,
                                 .tags = program_.tags,
                                 .clock = program_.clock,
                                 .environment = program_.environment,
                                 .dialogs = program_.dialogs,
                                 .shell = program_.shell,
                                 .mail = mail_,
                                 .chargerFichierCV = [this](TextView name) { program_.cv.OpenFile(name); },
                                 .waitCursor = ShowWaitCursor});
}

QWidget* SendingDesk::MakeApplyWindow(QWidget* parent) {
  MakeApply();
  applyWindow_ = new ApplyWindow(*apply_, program_.theme, parent);
  const FormCand& form = program_.formCand();
  const Text company = form.Societe.empty() ? Text{} : u", " + form.Societe;
  applyWindow_->setWindowTitle(form.Intitule.empty()
                                   ? QObject::tr("Postuler")
                                   : QObject::tr("Postuler\u00A0: %1").arg(ToQt(form.Intitule + company)));
  applyWindow_->OnActed = [this] {
    if (OnActed) OnActed();
  };
  applyWindow_->OnClosed = [this] { program_.shell.Unload(ApplyForm); };
  return applyWindow_;
}

QWidget* SendingDesk::MakeConvertWindow(QWidget* parent) {
  convert_.emplace(CvConversion::Surroundings{.editor = program_.cv.Form(),
                                              .environment = program_.environment,
                                              .shell = program_.shell,
                                              .dialogs = program_.dialogs,
                                              .documents = documents_,
                                              .wordProcessor = wordProcessor_,
                                              .printer = printer_,
                                              .waitCursor = ShowWaitCursor});
  convert_->Charger();
  auto* window = new ConvertWindow(*convert_, program_.theme, parent);
  window->OnClosed = [this] { program_.shell.Unload(ConvertForm); };
  return window;
}

void SendingDesk::Register() {
  program_.shell.Register(ApplyForm, {.place = QtShell::Place::Over,
                                      .make = [this](QWidget* parent) { return MakeApplyWindow(parent); },
                                      .loaded =
                                          [this] {
                                            applyWindow_->Do([this] { apply_->Charger(); });
                                            if (applyWindow_) applyWindow_->Tick1000();
                                          },
                                      .unloaded = [this] { StopTimer(); }});
  program_.shell.Register(ConvertForm, {.place = QtShell::Place::Over, .make = [this](QWidget* parent) {
                                          return MakeConvertWindow(parent);
                                        }});
}

// The load begins the form anew in its place, so that it comes before the form is asked. A form that is
// open for another candidature would keep that one's recipient and subject.
void SendingDesk::Review(const std::function<void()>& wayIn) {
  if (Apply() != nullptr && openedFor_ != program_.formCand().Num) program_.shell.Unload(ApplyForm);
  program_.shell.Load(ApplyForm);
  if (!applyWindow_) return;
  applyWindow_->Do(wayIn);
  // The marks of the letter that has been replaced would stand for a second.
  if (applyWindow_) applyWindow_->Tick1000();
}

void SendingDesk::OpenFromFormCand(const ApplyRequest& request) {
  Review([&] { apply_->OuvrirDepuisFormCand(request); });
}

void SendingDesk::OpenFromMenu() {
  Review([this] { apply_->OuvrirDepuisMenu(); });
}

void SendingDesk::StopTimer() {
  if (applyWindow_) applyWindow_->StopTimer();
}

FormPostuler* SendingDesk::Apply() {
  return program_.shell.WindowOf(ApplyForm) == nullptr ? nullptr : &*apply_;
}

}  // namespace talvor
