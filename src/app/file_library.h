// The main menu as a file manager: what the slots' gestures and menus do to the files of CVs and letter
// models. The folder is the list; every action takes the name from the slot that was clicked last.
//
// A copy, a renaming or a delete that fails throws FileError, and the files stand as they stood.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "platform/dialogs.h"
#include "platform/documents.h"
#include "platform/environment.h"
#include "platform/menus.h"
#include "platform/pickers.h"
#include "platform/shell.h"
#include "workspace/principale.h"

namespace talvor {

class FileLibrary {
 public:
  struct Surroundings {
    Principale& principale;
    Shell& shell;
    Dialogs& dialogs;
    Pickers& pickers;
    Documents& documents;
    Menus& menus;
    const Environment& environment;
  };
  explicit FileLibrary(Surroundings surroundings);

  // Ways to the forms; one that is not set does nothing.
  struct Ways {
    std::function<void(TextView name)> ouvrirCV;  // shows the editor with that file of the folder
    std::function<void(TextView name)> ouvrirLettre;
    std::function<void()> nouvelleLettre;
    std::function<void()> imprimerCV;  // the page of the editor, without a dialog
    std::function<void()> viderInformation;
  };
  Ways ways;

  // A click on a slot, 0 to 10: its menu, with the items that apply. A double click: its document.
  void OpenSlotMenu(std::size_t slot);
  void OpenSlot(std::size_t slot);
  // The keys of a slot that holds a file: its renaming, its delete. A free slot has neither.
  void RenameSlot(std::size_t slot);
  void DeleteSlot(std::size_t slot);
  // Runs the item of `MenuCV` or `MenuLettre` of that name; false for a name of other menus.
  bool Choose(TextView item);

  void MenuNouveauCV();
  void MenuRattacherCV();
  void RattacherCV();
  void MenuOuvrirCV();
  void MenuSupprimerCV();
  // Asks, then deletes the CV at that 0-based index of the list of CVs. Its photo and its version in
  // another format stay.
  void SupprimerCV(std::size_t index);
  void Renommer();
  void MenuDupliquerCV();
  void MenuConvertirCV();
  void MenuOuvrirWord();
  void MenuImprimerCV();
  // Two items without an action.
  void MenuEnvoyerAmi() {}
  void MenuEnvoyerRecruteur() {}

  void MenuRedigerLettre();
  void MenuOuvrirLettre();
  void MenuDuppliquerLettre();  // (spelt so in the menus)
  void RenommerLettre();
  void MenuSupprimerLettre();

 private:
  [[nodiscard]] bool ChooseFile(std::size_t slot);
  [[nodiscard]] Text Name() const;
  [[nodiscard]] std::optional<Text> AskNewName(const std::filesystem::path& folder) const;
  void Dupliquer(const std::filesystem::path& folder);
  void AfterRenaming(TextView form);

  Surroundings around_;
};

}  // namespace talvor
