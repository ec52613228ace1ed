// SPDX-License-Identifier: MIT
#pragma once

class wxMenuBar;

namespace brelex {

/// Call once the bar has its menus. Afterward, a menu that cannot open, because another program
/// holds the mouse, leaves the keyboard to the window.
void LetGoOfUnopenedMenus(wxMenuBar& bar);

}  // namespace brelex
