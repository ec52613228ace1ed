// SPDX-License-Identifier: MIT
#include "tests/platform/keyboard.h"

#include <wx/toplevel.h>

#include <windows.h>

namespace brelex {

// The active window of a thread need not be the one in the foreground, which gets the keys.
bool HasKeyboard(wxTopLevelWindow& window) {
    return window.IsActive() && GetForegroundWindow() == window.GetHWND();
}

// The simulator of the toolkit does not know this key.
void PressKeypadEnter() {
    for (const DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
        keybd_event(VK_RETURN, 0, flags | KEYEVENTF_EXTENDEDKEY, 0);
    }
}

}  // namespace brelex
