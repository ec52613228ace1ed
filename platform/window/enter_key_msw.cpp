// SPDX-License-Identifier: MIT
#include "platform/window/enter_key.h"

#include <windows.h>

namespace brelex {

// Unlike the toolkit's function, this one follows the messages as the program takes them.
bool WasEnterDown() {
    return GetKeyState(VK_RETURN) < 0;
}

}  // namespace brelex
