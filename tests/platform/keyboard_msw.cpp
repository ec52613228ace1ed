// SPDX-License-Identifier: MIT
#include "tests/platform/keyboard.h"

#include <wx/toplevel.h>

#include <windows.h>

namespace brelex {

// The active window of a thread need not be the one in the foreground, which gets the keys.
bool HasKeyboard(wxTopLevelWindow& window) {
    return window.IsActive() && GetForegroundWindow() == window.GetHWND();
}

}  // namespace brelex
