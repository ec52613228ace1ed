// SPDX-License-Identifier: MIT
#include "platform/window/bring_forward.h"

#include <wx/frame.h>

#include <windows.h>

namespace brelex {

void BringForward(wxFrame& window) {
    HWND const handle = window.GetHWND();
    window.Restore();  // otherwise the toolkit would show a hidden window minimized
    window.Show();
    if (IsIconic(handle) != 0) {
        ShowWindow(handle, SW_RESTORE);
    }
    // A modal window over it gets the keyboard, because the window itself accepts no keys then.
    SetForegroundWindow(GetLastActivePopup(handle));
}

void BringOpenedForward(wxFrame& /*window*/) {}

bool SystemShows(const wxFrame& window) {
    return IsWindowVisible(window.GetHWND()) != 0 && IsIconic(window.GetHWND()) == 0;
}

bool MayBeMinimized(const wxFrame& window) {
    return window.IsIconized();
}

void OnMinimizeButton(wxFrame& /*window*/, const std::function<void()>& /*act*/) {}

bool CanStayOnTop() {
    return true;
}

}  // namespace brelex
