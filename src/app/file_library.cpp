#include "app/file_library.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "app/file_error.h"
#include "app/menu_trees.h"
#include "base/line_file.h"
#include "workspace/document_keeping.h"
#include "workspace/documents_folder.h"
#include "workspace/systeme.h"

namespace talvor {
namespace {

namespace fs = std::filesystem;

constexpr TextView BetterWriteOne =
    u"INFORMATION : Pour profiter pleinement de toutes les fonctionnalités de Talvor, génération automatique "
    u"des courriers et préremplissage automatique des formulaires, il est préférable de rédiger un nouveau "
    u"CV à l'aide de l'assistant, éventuellement en effectuant des Copier/Coller du CV que vous possédez "
    u"déjà.";
// The label and the pattern spell one kind in two ways.
constexpr TextView CvFilter =
    u"Fichiers CV (*.Doc,*.docx,*.rtf,*.pdf,*.sxw)|*.doc;*.rtf;*.docx;*.pdf;*.swx;*.odt|Tous (*.*)|*.*";
constexpr TextView CopyPrefix = u"Copie de ";
constexpr TextView Photo = u".jpg";

struct Renaming {
  fs::path from;
  fs::path to;
};

// All of them or none: what was renamed before a failure gets its old name back.
void RenameAll(std::span<const Renaming> renamings) {
  for (std::size_t i = 0; i < renamings.size(); ++i) {
    const Result<> renamed = RenameDocument(renamings[i].from, renamings[i].to);
    if (!renamed.Failed()) continue;
    const Renaming& failed = renamings[i];
    while (i-- > 0)
      if (const auto back = RenameDocument(renamings[i].to, renamings[i].from); back.Failed())
        throw FileError(renamings[i].to, u"n’a pas pu reprendre son ancien nom", back.Why());
    throw FileError(failed.from, u"n’a pas pu devenir " + Quoted(TextOf(failed.to).value_or(Text{})),
                    renamed.Why());
  }
}

void CopyDocument(const fs::path& from, const fs::path& to) {
  const auto bytes = ReadBytes(from);
  const auto saved = bytes ? SaveDocument(to, *bytes) : Result<>(bytes.Why());
  if (saved.Failed()) throw FileError(from, u"n’a pas pu être copié", saved.Why());
}

void Delete(const fs::path& document) {
  if (const auto deleted = DeleteDocument(document); deleted.Failed())
    throw FileError(document, u"n’a pas pu être supprimé", deleted.Why());
}

Text LastCharacters(const Text& name, std::size_t count) {
  return name.size() <= count ? name : name.substr(name.size() - count);
}

// The renaming of a photo along with its CV, if it has one.
std::optional<Renaming> RenamingOfPhoto(const Text& oldName, const Text& chosen) {
  constexpr std::size_t Ending = 4;
  const Text stem = oldName.substr(0, oldName.size() < Ending ? 0 : oldName.size() - Ending);
  const auto photo = ExistingFile(FileIn(workspace_paths::ModelFolder(), stem + Text{Photo}));
  if (!photo) return std::nullopt;
  return Renaming{*photo, PathOf(ReplaceAll(chosen, u"/CV/", u"/Modeles/") + Text{Photo})};
}

}  // namespace

FileLibrary::FileLibrary(Surroundings surroundings) : around_(surroundings) {}

// The file of the slot that was clicked last.
Text FileLibrary::Name() const {
  const std::int16_t index = around_.principale.IndexMenu;
  return index < 0 ? Text{} : around_.principale.ImageMenu[static_cast<std::size_t>(index)].toolTip;
}

void FileLibrary::OpenSlotMenu(std::size_t slot) {
  EnableSlotMenu(around_.menus, around_.principale, slot, around_.shell.FormeVisible(EditorForm),
                 around_.environment);
  around_.principale.IndexMenu = static_cast<std::int16_t>(slot);
  around_.menus.Open(MenuOfSlot(slot));
}

void FileLibrary::OpenSlot(std::size_t slot) {
  if (slot < Principale::CandidatureSlot && !around_.principale.ImageMenu[slot].visible) return;
  around_.principale.IndexMenu = static_cast<std::int16_t>(slot);
  const Text name = Name();
  if (slot == Principale::CandidatureSlot) {
    around_.shell.Load(CandidatureForm);
    return around_.shell.Show(CandidatureForm);
  }
  if (slot >= Principale::FirstLetterSlot) return name.empty() ? MenuRedigerLettre() : MenuOuvrirLettre();
  if (name.empty()) return MenuNouveauCV();
  // The editor takes the file whatever its extension is.
  if (ways.ouvrirCV) ways.ouvrirCV(name);
}

bool FileLibrary::ChooseFile(std::size_t slot) {
  const MenuSlot& chosen = around_.principale.ImageMenu[slot];
  if (slot >= Principale::CandidatureSlot || !chosen.visible || chosen.toolTip.empty()) return false;
  around_.principale.IndexMenu = static_cast<std::int16_t>(slot);
  return true;
}

void FileLibrary::RenameSlot(std::size_t slot) {
  if (ChooseFile(slot)) slot < Principale::FirstLetterSlot ? Renommer() : RenommerLettre();
}

void FileLibrary::DeleteSlot(std::size_t slot) {
  if (ChooseFile(slot)) slot < Principale::FirstLetterSlot ? MenuSupprimerCV() : MenuSupprimerLettre();
}

bool FileLibrary::Choose(TextView item) {
  struct Action {
    TextView item;
    void (FileLibrary::*run)();
  };
  static constexpr std::array<Action, 16> Actions{{
      {u"MenuNouveauCV", &FileLibrary::MenuNouveauCV},
      {u"MenuRattacherCV", &FileLibrary::MenuRattacherCV},
      {u"MenuOuvrirCV", &FileLibrary::MenuOuvrirCV},
      {u"MenuSupprimerCV", &FileLibrary::MenuSupprimerCV},
      {u"Renommer", &FileLibrary::Renommer},
      {u"MenuDupliquerCV", &FileLibrary::MenuDupliquerCV},
      {u"MenuConvertirCV", &FileLibrary::MenuConvertirCV},
      {u"MenuOuvrirWord", &FileLibrary::MenuOuvrirWord},
      {u"MenuImprimerCV", &FileLibrary::MenuImprimerCV},
      {u"MenuEnvoyerAmi", &FileLibrary::MenuEnvoyerAmi},
      {u"MenuEnvoyerRecruteur", &FileLibrary::MenuEnvoyerRecruteur},
      {u"MenuRédigerLettre", &FileLibrary::MenuRedigerLettre},
      {u"MenuOuvrirLettre", &FileLibrary::MenuOuvrirLettre},
      {u"MenuDuppliquerLettre", &FileLibrary::MenuDuppliquerLettre},
      {u"RenommerLettre", &FileLibrary::RenommerLettre},
      {u"MenuSupprimerLettre", &FileLibrary::MenuSupprimerLettre},
  }};
  for (const Action& action : Actions)
    if (action.item == item) {
      (this->*action.run)();
      return true;
    }
  return false;
}

void FileLibrary::MenuNouveauCV() {
  around_.shell.Unload(EditorForm);
  around_.shell.Show(EditorForm);
}

void FileLibrary::MenuRattacherCV() {
  if (around_.principale.ImageMenu[0].picture == SlotPicture::ImageNew) around_.dialogs.Tell(BetterWriteOne);
  RattacherCV();
}

void FileLibrary::RattacherCV() {
  const auto chosen = around_.pickers.OpenFile({.title = u"Sélection d'un CV",
                                                .folder = PathOf(around_.environment.Variable(u"homepath")),
                                                .filter = Text{CvFilter},
                                                .name = {}});
  if (chosen) {
    fs::path copy = workspace_paths::CvFolder();
    copy /= chosen->filename();
    CopyDocument(*chosen, copy);
  }
  around_.principale.InitMenu();
}

void FileLibrary::MenuOuvrirCV() {
  const Text name = Name();
  if (!Contains(name, u".dat"))
    OuvrirDocument(TextOf(FileIn(workspace_paths::CvFolder(), name)).value_or(Text{}), around_.documents,
                   around_.dialogs);
  else if (ways.ouvrirCV)
    ways.ouvrirCV(name);
}

void FileLibrary::MenuSupprimerCV() { SupprimerCV(static_cast<std::size_t>(around_.principale.IndexMenu)); }

void FileLibrary::SupprimerCV(std::size_t index) {
  FileList& list = around_.principale.ListedFiles;
  list.Point(workspace_paths::CvFolder());
  const Text name = list.List(index);
  if (!around_.dialogs.Confirm(u"Confirmez-vous la suppression du CV : " + name + u" ?")) return;
  Delete(FileIn(workspace_paths::CvFolder(), name));
  MenuNouveauCV();
  around_.principale.InitMenu();
}

std::optional<Text> FileLibrary::AskNewName(const fs::path& folder) const {
  const auto chosen = around_.pickers.SaveFile(
      {.title = u"Saisie d'un nouveau nom", .folder = folder, .filter = u"*.*", .name = {}});
  const auto path = chosen ? TextOf(*chosen) : std::nullopt;
  if (!path || path->empty()) return std::nullopt;
  if (TextOf(chosen->filename()).value_or(Text{}).starts_with(u'.')) {
    around_.dialogs.Tell(
        u"Un nom qui commence par un point est celui d’un fichier caché\u00A0: choisissez-en un autre.");
    return std::nullopt;
  }
  return path;
}

void FileLibrary::Renommer() {
  const Text oldName = Name();
  const fs::path file = FileIn(workspace_paths::CvFolder(), oldName);
  const auto answer = AskNewName(workspace_paths::CvFolder());
  if (!answer) return;
  if (UpperCase(oldName).ends_with(u"DOCX")) {
    // The photo keeps its old name here.
    const Renaming alone{file, PathOf(*answer + LastCharacters(oldName, 5))};
    RenameAll({&alone, 1});
  } else {
    // An extension goes wherever it stands in the path; one of another kind, .rtf say, stays and doubles.
    Text chosen = *answer;
    for (const TextView extension : {u".dat", u".doc", u".pdf"}) chosen = ReplaceAll(chosen, extension, u"");
    const Renaming cv{file, PathOf(chosen + LastCharacters(oldName, 4))};
    const std::array both{cv, RenamingOfPhoto(oldName, chosen).value_or(Renaming{})};
    RenameAll({both.data(), both[1].from.empty() ? 1u : 2u});
  }
  AfterRenaming(EditorForm);
}

void FileLibrary::RenommerLettre() {
  const Text oldName = Name();
  const auto chosen = AskNewName(workspace_paths::LetterFolder());
  if (!chosen) return;
  const Renaming alone{FileIn(workspace_paths::LetterFolder(), oldName),
                       PathOf(*chosen + LastCharacters(oldName, 4))};
  RenameAll({&alone, 1});
  AfterRenaming(LetterForm);
}

void FileLibrary::AfterRenaming(TextView form) {
  around_.shell.Unload(form);
  around_.shell.Load(form);
  around_.principale.InitMenu();
  if (ways.viderInformation) ways.viderInformation();
}

// A second copy of the same file replaces the first one, which stays among the kept versions.
void FileLibrary::Dupliquer(const fs::path& folder) {
  CopyDocument(FileIn(folder, Name()), FileIn(folder, Text{CopyPrefix} + Name()));
  around_.principale.InitMenu();
}

void FileLibrary::MenuDupliquerCV() { Dupliquer(workspace_paths::CvFolder()); }
void FileLibrary::MenuDuppliquerLettre() { Dupliquer(workspace_paths::LetterFolder()); }

void FileLibrary::MenuConvertirCV() { around_.shell.Show(ConvertForm); }

void FileLibrary::MenuOuvrirWord() {
  const auto version = LastWordVersion(around_.environment, DocumentsLayout::OfTheSystem, Name());
  OuvrirDocument(TextOf(version).value_or(Text{}), around_.documents, around_.dialogs);
}

void FileLibrary::MenuImprimerCV() {
  if (ways.imprimerCV) ways.imprimerCV();
}

void FileLibrary::MenuRedigerLettre() {
  if (ways.nouvelleLettre) ways.nouvelleLettre();
}

void FileLibrary::MenuOuvrirLettre() {
  if (ways.ouvrirLettre) ways.ouvrirLettre(Name());
}

void FileLibrary::MenuSupprimerLettre() {
  const Text name = Name();
  if (!around_.dialogs.Confirm(u"Confirmez-vous la suppression du modèle de lettre " + name + u" ?")) return;
  Delete(FileIn(workspace_paths::LetterFolder(), name));
  if (!around_.shell.FormeVisible(LetterForm)) {
    around_.shell.Unload(HomeForm);
    around_.shell.Load(HomeForm);
  }
  around_.principale.InitMenu();
}

}  // namespace talvor
