// SPDX-License-Identifier: MIT
#include "platform/bring_forward.h"

#include <wx/frame.h>

#include <windows.h>

namespace brelex {

void BringForward(wxFrame& window) {
    HWND const handle = window.GetHWND();
    if (!window.IsShown() || IsIconic(handle) != 0) {
        ShowWindow(handle, SW_RESTORE);
        window.Show();  // the toolkit keeps a state of its own
    }
    SetForegroundWindow(handle);
}

}  // namespace brelex
