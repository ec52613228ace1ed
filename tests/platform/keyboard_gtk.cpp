// SPDX-License-Identifier: MIT
#include "tests/platform/keyboard.h"

#include <wx/toplevel.h>

namespace brelex {

bool HasKeyboard(wxTopLevelWindow& window) {
    return window.IsActive();
}

}  // namespace brelex
