// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// From now on, a menu that cannot open, because another program holds the mouse, leaves the
/// keyboard to the window. This is about all menus of the program, also those of the toolkit's text
/// boxes.
void LetGoOfUnopenedMenus();

}  // namespace brelex
