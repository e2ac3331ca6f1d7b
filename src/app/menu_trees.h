// The menus of the program as data, and the rules that enable their items.
#pragma once

#include <cstddef>
#include <span>

#include "base/text.h"
#include "platform/environment.h"
#include "platform/menus.h"
#include "workspace/principale.h"

namespace talvor {

// An item without a caption is a separator.
struct MenuItem {
  TextView name;
  TextView caption;
};

struct MenuTree {
  TextView name;
  std::span<const MenuItem> items;
};

// All menus, each item under its own name.
[[nodiscard]] std::span<const MenuTree> MenuTrees();

// The items that the menu of a slot enables and disables, as the click on that slot does it. `cvOpen`
// says whether the editor of CVs is visible. The slot of the candidatures has no rule.
void EnableSlotMenu(Menus& menus, const Principale& principale, std::size_t slot, bool cvOpen,
                    const Environment& environment);

// The menu that opens under a slot.
[[nodiscard]] TextView MenuOfSlot(std::size_t slot);

}  // namespace talvor
