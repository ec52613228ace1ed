// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <wx/menu.h>

namespace brelex {

/// Identifiers of the main window's menu items: the menu's first one plus the item's index
/// (0-based, separators counted).
inline constexpr int kFileItem = wxID_HIGHEST + 1;
inline constexpr int kSearchItem = kFileItem + 10;
inline constexpr int kOptionsItem = kSearchItem + 10;
inline constexpr int kHelpItem = kOptionsItem + 10;
inline constexpr int kListboxRClickItem = kHelpItem + 10;
inline constexpr int kMenuIdEnd = kListboxRClickItem + 10;

/// The menu `mnuListboxRClick` of a row of the list.
[[nodiscard]] std::unique_ptr<wxMenu> CreateListMenu();

/// The main window's menu bar. The frame that it is given to owns it.
[[nodiscard]] wxMenuBar* CreateMainMenus();

}  // namespace brelex
