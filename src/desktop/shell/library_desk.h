// The menus of the main window in the program: the gestures of the header's slots, what their menus
// lead to, and the popup of a candidature.
#pragma once

#include <functional>
#include <optional>

#include "app/candidature_menus.h"
#include "app/file_library.h"
#include "desktop/header_bar.h"
#include "desktop/shell/menus.h"

namespace talvor {

class LibraryDesk {
 public:
  // All of them must outlive it.
  struct Program {
    Principale& principale;
    Shell& shell;
    const Theme& theme;
    const Environment& environment;
    Dialogs& dialogs;
    Pickers& pickers;
    Documents& documents;
  };
  explicit LibraryDesk(const Program& program);

  // Called before each action, so that what was typed is saved, and after it.
  std::function<void()> BeforeActing, OnActed;

  // Takes the gestures of the slots.
  void Connect(HeaderBar& header);
  // The popup of a candidature at a place of the screen.
  void OpenItemMenu(QPoint place, bool canApply);

  [[nodiscard]] FileLibrary& Library() { return library_; }
  [[nodiscard]] CandidatureMenus& Candidatures() { return candidatures_; }
  [[nodiscard]] QtMenus& Menus() { return menus_; }

 private:
  void Do(const std::function<void()>& action);
  [[nodiscard]] std::optional<std::size_t> SlotAfterSaving(std::size_t slot);

  const Principale& principale_;
  QtMenus menus_;
  FileLibrary library_;
  CandidatureMenus candidatures_;
};

}  // namespace talvor
