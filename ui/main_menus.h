// SPDX-License-Identifier: MIT
#pragma once

#include <wx/menu.h>

namespace brelex {

/// Identifiers of the main window's menu items: the menu's first one plus the item's index
/// (0-based, separators counted).
enum MenuId {
    kFileItem = wxID_HIGHEST + 1,
    kSearchItem = kFileItem + 10,
    kOptionsItem = kSearchItem + 10,
    kHelpItem = kOptionsItem + 10,
    kMenuIdEnd = kHelpItem + 10
};

/// The main window's menu bar. The frame that it is given to owns it.
[[nodiscard]] wxMenuBar* CreateMainMenus();

}  // namespace brelex
