// SPDX-License-Identifier: MIT
#include "platform/desktop/unopened_menus.h"

namespace brelex {

// Windows opens menus in any case.
void LetGoOfUnopenedMenus() {}

}  // namespace brelex
