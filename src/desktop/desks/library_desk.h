// The slots of the header in the program: their gestures, and what their menus lead to.
#pragma once

#include <optional>

#include "app/file_library.h"
#include "desktop/desks/desk.h"
#include "desktop/platform/qt_documents.h"
#include "desktop/platform/qt_menus.h"

namespace talvor {

class LibraryDesk : public Desk {
 public:
  explicit LibraryDesk(const DeskSurroundings& around);

  [[nodiscard]] QtMenus& Menus() { return menus_; }

 private:
  void TakeGestures();
  void Acted() const;
  [[nodiscard]] std::optional<std::size_t> SlotAfterSaving(std::size_t slot);

  DeskSurroundings around_;
  QtDocuments documents_;
  QtMenus menus_;
  FileLibrary library_;
};

}  // namespace talvor
