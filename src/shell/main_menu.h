// What the main window `Principale` does: its slots as they are told to the user, and its events.
#pragma once

#include "platform/shell.h"
#include "workspace/principale.h"

namespace talvor {

// What the label `Information` says of a slot under the pointer.
[[nodiscard]] Text SlotInformation(const Principale& principale, std::size_t slot);

// The name under a slot's picture: the file's without its extension and without the kind of a letter.
[[nodiscard]] Text SlotCaption(const Principale& principale, std::size_t slot);

// The kind in the name of a letter model, one of ER, ES, IR and IS; empty without one.
[[nodiscard]] Text KindInName(TextView name);

// The pointer enters or leaves the slot of the candidatures, which changes its picture unless it is free.
void HoverCandidatures(Principale& principale, bool over);

class MainMenu {
 public:
  explicit MainMenu(Shell& shell) : shell_(shell) {}

  void Activate();
  void Resize();
  // "Menu": back to the home panel, all other forms closed; nothing while `Assistant` stands.
  void GoHome();
  void OpenBackup();
  void OpenAbout();
  void OpenCandidatures();
  void Unload();

 private:
  Shell& shell_;
};

}  // namespace talvor
