#include "desktop/desks/library_desk.h"

#include "desktop/shell/main_window.h"
#include "workspace/systeme.h"

namespace talvor {

LibraryDesk::LibraryDesk(const DeskSurroundings& around)
    : around_(around),
      menus_(around.theme, {u"MenuCV", u"MenuLettre", u"MenuCandidature"}),
      library_({around.principale, around.shell, around.dialogs, around.pickers, documents_, menus_,
                around.environment}) {
  documents_.OnRefused = [this](TextView target) { TellNotOpened(target, around_.dialogs); };
  menus_.OnChosen = [this](TextView item) {
    around_.ways.keepTyping();
    if (!library_.Choose(item)) around_.ways.candidatureMenu(item);
    Acted();
  };
  DeskWays& ways = around_.ways;
  ways.attachCv = [this] { library_.RattacherCV(); };
  library_.ways = {.ouvrirCV = [&ways](TextView name) { ways.openCv(name); },
                   .ouvrirLettre = [&ways](TextView name) { ways.openLetter(name); },
                   .nouvelleLettre = [&ways] { ways.newLetter(); },
                   .imprimerCV = [&ways] { ways.printCv(); },
                   .viderInformation = [&main = around_.main] { main.Header().ClearInformation(); }};
  TakeGestures();
}

void LibraryDesk::Acted() const {
  around_.ways.refresh();
  around_.ways.refreshHome();
}

// What the slot showed may stand in another one once the typed text is saved, which can add a file to the
// list. Nothing when no slot shows it any more.
std::optional<std::size_t> LibraryDesk::SlotAfterSaving(std::size_t slot) {
  const auto before = around_.principale.ImageMenu;
  around_.ways.keepTyping();
  const auto group = [](std::size_t i) {
    return i < Principale::FirstLetterSlot ? 0 : i < Principale::CandidatureSlot ? 1 : 2;
  };
  const auto& slots = around_.principale.ImageMenu;
  if (slots[slot].toolTip == before[slot].toolTip) return slot;
  for (std::size_t i = 0; i < slots.size(); ++i)
    if (group(i) == group(slot) && slots[i].visible && slots[i].toolTip == before[slot].toolTip) return i;
  return std::nullopt;
}

void LibraryDesk::TakeGestures() {
  HeaderBar& header = around_.main.Header();
  const auto doing = [this](void (FileLibrary::*action)(std::size_t)) {
    return [this, action](std::size_t clicked) {
      if (const auto slot = SlotAfterSaving(clicked)) (library_.*action)(*slot);
      Acted();
    };
  };
  header.OnSlotClick = [this, &header](std::size_t clicked) {
    const auto slot = SlotAfterSaving(clicked);
    Acted();
    if (!slot) return;
    menus_.SetAnchor(&header.Slot(*slot));
    library_.OpenSlotMenu(*slot);
  };
  header.OnSlotOpen = doing(&FileLibrary::OpenSlot);
  header.OnSlotRename = doing(&FileLibrary::RenameSlot);
  header.OnSlotDelete = doing(&FileLibrary::DeleteSlot);
}

}  // namespace talvor
