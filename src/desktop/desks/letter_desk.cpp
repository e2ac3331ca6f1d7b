#include "desktop/desks/letter_desk.h"

#include <filesystem>

#include "base/line_file.h"
#include "workspace/document_keeping.h"
#include "workspace/systeme.h"
#include "workspace/workspace_paths.h"

namespace talvor {

LetterDesk::LetterDesk(const DeskSurroundings& around)
    : around_(around), form_(around.principale, around.clock, around.dialogs, around.shell) {
  documents_.OnRefused = [this](TextView target) { TellNotOpened(target, around_.dialogs); };
  form_.openDocument = [this](const std::filesystem::path& document) {
    OuvrirDocument(TextOf(document).value_or(Text{}), documents_, around_.dialogs);
  };
  around_.ways.newLetter = [this] { OpenNew(); };
  around_.ways.openLetter = [this](TextView name) { OpenFile(name); };
  around_.shell.Page(LetterForm, [this](QWidget* parent) { return MakeWindow(parent); }).unloaded = [this] {
    Unloaded();
  };
}

QWidget* LetterDesk::MakeWindow(QWidget* parent) {
  form_.Charger();
  window_ = new LetterWindow(form_, around_.theme, parent);
  window_->OnActed = around_.ways.refresh;
  return window_;
}

// What was typed since the last tick is saved; the model may serve another window at once, so this one
// goes first.
void LetterDesk::Unloaded() {
  form_.SaveIfChanged();
  delete window_.data();
}

void LetterDesk::OpenNew() {
  around_.shell.Load(LetterForm);
  KeepTyping();  // the letter before keeps what was typed since the last tick
  window_->NewLetter();
}

void LetterDesk::OpenFile(TextView name) {
  const Text file{name};  // the slot may be filled anew meanwhile
  around_.shell.Load(LetterForm);
  KeepTyping();
  window_->Do([&] { form_.ChargerFichierLettre(FileIn(workspace_paths::LetterFolder(), file)); });
}

void LetterDesk::KeepTyping() {
  if (window_) window_->Tick1000();
}

void LetterDesk::CloseDocuments() { around_.shell.Unload(LetterForm); }

void LetterDesk::Stop() {
  if (window_) window_->StopTimer();
  form_.SaveIfChanged();
}

}  // namespace talvor
