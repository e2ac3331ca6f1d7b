#include "desktop/library_desk.h"

namespace talvor {

LibraryDesk::LibraryDesk(const Program& program)
    : menus_(program.theme, {u"MenuCV", u"MenuLettre", u"MenuCandidature", u"MenuItemCand"}),
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

void LibraryDesk::Connect(HeaderBar& header) {
  const auto doing = [this](void (FileLibrary::*action)(std::size_t)) {
    return [this, action](std::size_t slot) { Do([&] { (library_.*action)(slot); }); };
  };
  header.OnSlotClick = [this, &header](std::size_t slot) {
    menus_.SetAnchor(&header.Slot(slot));
    library_.ClicSlot(slot);
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
