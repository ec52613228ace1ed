// SPDX-License-Identifier: MIT
#include "tests/platform/keyboard.h"

#include <wx/toplevel.h>

#include <windows.h>

namespace brelex {

// The active window of a thread need not be the one in the foreground, which gets the keys.
bool HasKeyboard(wxTopLevelWindow& window) {
    return window.IsActive() && GetForegroundWindow() == window.GetHWND();
}

// The system has put them there when the call that simulates them returns.
void AwaitSimulatedInput() {}

// The simulator of the toolkit leaves out which key of the keyboard it is, and without that Wine
// makes no character of it.
void PressSelectAll() {
    const auto press = [](UINT key, DWORD flags) {
        keybd_event(static_cast<BYTE>(key), static_cast<BYTE>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)),
                    flags, 0);
    };
    press(VK_CONTROL, 0);
    press('A', 0);
    press('A', KEYEVENTF_KEYUP);
    press(VK_CONTROL, KEYEVENTF_KEYUP);
}

// The simulator of the toolkit does not know this key.
void PressKeypadEnter() {
    for (const DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
        keybd_event(VK_RETURN, 0, flags | KEYEVENTF_EXTENDEDKEY, 0);
    }
}

}  // namespace brelex
