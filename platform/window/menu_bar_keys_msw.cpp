// SPDX-License-Identifier: MIT
#include "platform/window/menu_bar_keys.h"

namespace brelex {

// Windows opens menus in any case.
void LetGoOfUnopenedMenus(wxMenuBar& /*bar*/) {}

}  // namespace brelex
