// SPDX-License-Identifier: MIT
#include "tests/platform/keyboard.h"

#include <wx/toplevel.h>
#include <wx/uiaction.h>

namespace brelex {

bool HasKeyboard(wxTopLevelWindow& window) {
    return window.IsActive();
}

void PressSelectAll() {
    wxUIActionSimulator().Char('A', wxMOD_CONTROL);
}

void PressKeypadEnter() {
    wxUIActionSimulator().Char(WXK_NUMPAD_ENTER);
}

}  // namespace brelex
