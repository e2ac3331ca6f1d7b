#include "desktop/shell/library_desk.h"

namespace talvor {

LibraryDesk::LibraryDesk(const Program& program)
    : principale_(program.principale),
      menus_(program.theme, {u"MenuCV", u"MenuLettre", u"MenuCandidature", u"MenuItemCand"}),
      library_({program.principale, program.shell, program.dialogs, program.pickers, program.documents,
                menus_, program.environment}),
      candidatures_(program.principale, program.shell) {
  menus_.OnChosen = [this](TextView item) {
    Do([&] {
      if (!library_.Choisir(item)) candidatures_.Choisir(item);
    });
  };
}

void LibraryDesk::Do(const std::function<void()>& action) {
  if (BeforeActing) BeforeActing();
  action();
  if (OnActed) OnActed();
}

// What the slot showed may stand in another one once the typed text is saved, which can add a file to the
// list. Nothing when no slot shows it any more.
std::optional<std::size_t> LibraryDesk::SlotAfterSaving(std::size_t slot) {
  const auto before = principale_.ImageMenu;
  if (BeforeActing) BeforeActing();
  const auto group = [](std::size_t i) {
    return i < Principale::FirstLetterSlot ? 0 : i < Principale::CandidatureSlot ? 1 : 2;
  };
  const auto& slots = principale_.ImageMenu;
  if (slots[slot].toolTip == before[slot].toolTip) return slot;
  for (std::size_t i = 0; i < slots.size(); ++i)
    if (group(i) == group(slot) && slots[i].visible && slots[i].toolTip == before[slot].toolTip) return i;
  return std::nullopt;
}

void LibraryDesk::Connect(HeaderBar& header) {
  const auto doing = [this](void (FileLibrary::*action)(std::size_t)) {
    return [this, action](std::size_t clicked) {
      if (const auto slot = SlotAfterSaving(clicked)) (library_.*action)(*slot);
      if (OnActed) OnActed();
    };
  };
  header.OnSlotClick = [this, &header](std::size_t clicked) {
    const auto slot = SlotAfterSaving(clicked);
    if (OnActed) OnActed();
    if (!slot) return;
    menus_.SetAnchor(&header.Slot(*slot));
    library_.ClicSlot(*slot);
  };
  header.OnSlotOpen = doing(&FileLibrary::DoubleClicSlot);
  header.OnSlotRename = doing(&FileLibrary::RenommerSlot);
  header.OnSlotDelete = doing(&FileLibrary::SupprimerSlot);
  library_.ways.viderInformation = [&header] { header.ClearInformation(); };
}

void LibraryDesk::OpenItemMenu(QPoint place, bool canApply) {
  menus_.Enable(u"MenuPostuler", canApply);
  menus_.OpenAt(u"MenuItemCand", place);
}

}  // namespace talvor
