// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <wx/menu.h>

#include "presentation/commands.h"

namespace brelex {

/// The identifier of a command's menu item.
[[nodiscard]] constexpr int IdOf(Command command) {
    return wxID_HIGHEST + 1 + static_cast<int>(command);
}

/// The command of the menu item with this identifier.
[[nodiscard]] constexpr Command CommandOf(int id) {
    return static_cast<Command>(id - wxID_HIGHEST - 1);
}

/// Creates the menu `mnuListboxRClick` of a row of the list.
[[nodiscard]] std::unique_ptr<wxMenu> CreateListMenu();

/// Creates the main window's menu bar. The frame that receives it owns it.
[[nodiscard]] wxMenuBar* CreateMainMenus();

}  // namespace brelex
