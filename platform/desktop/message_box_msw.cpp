// SPDX-License-Identifier: MIT
#include "platform/desktop/message_box.h"

#include <algorithm>

#include <wx/modalhook.h>
#include <wx/utils.h>

#include <windows.h>

#include "platform/desktop/dialog_hook_msw.h"
#include "toolkit/app_icon.h"

namespace brelex {

namespace {

UINT IconOf(long style) {
    switch (style & wxICON_MASK) {
        case wxICON_INFORMATION:
            return MB_ICONINFORMATION;
        case wxICON_QUESTION:
            return MB_ICONQUESTION;
        case wxICON_EXCLAMATION:
            return MB_ICONEXCLAMATION;
        case wxICON_ERROR:
            return MB_ICONHAND;
        default:
            return 0;
    }
}

// The system centers its boxes on the screen. The whole box stays on the screen.
void CenterOn(HWND owner, HWND box) {
    RECT around{};
    RECT area{};
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    if (IsIconic(owner) != 0 || GetWindowRect(owner, &around) == 0 ||
        GetWindowRect(box, &area) == 0 ||
        GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTONEAREST), &monitor) == 0) {
        return;
    }
    const RECT& screen = monitor.rcWork;
    const LONG width = area.right - area.left;
    const LONG height = area.bottom - area.top;
    const LONG left = (around.left + around.right - width) / 2;
    const LONG top = (around.top + around.bottom - height) / 2;
    SetWindowPos(box, nullptr, std::max(screen.left, std::min(left, screen.right - width)),
                 std::max(screen.top, std::min(top, screen.bottom - height)), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int IdOfAnswer(int answer) {
    switch (answer) {
        case IDOK:
            return wxID_OK;
        case IDYES:
            return wxID_YES;
        case IDNO:
            return wxID_NO;
        default:
            return wxID_CANCEL;
    }
}

}  // namespace

// The toolkit would show a task dialog, which turns the text before an empty line into a bold
// heading.
int SystemMessageBox::ShowModal() {
    WX_HOOK_MODAL_DIALOG();
    wxWindow* const parent = GetParentForModalDialog(m_parent, 0);
    const wxWindowDisabler others(this, parent);
    HWND const owner = parent != nullptr ? static_cast<HWND>(parent->GetHWND()) : nullptr;
    const wxIconBundle icons = AppIcons();
    const DialogHook hook([&](HWND box) {
        if (owner != nullptr) {
            CenterOn(owner, box);
        } else {
            GiveIcons(box, icons);
            // MB_TOPMOST does this on Windows, but not under Wine (seen with 8.0).
            SetWindowPos(box, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        }
    });
    const long style = GetMessageDialogStyle();
    const UINT buttons = (style & wxYES_NO) == wxYES_NO ? MB_YESNO : MB_OK;
    const UINT place = owner != nullptr ? MB_APPLMODAL : MB_TASKMODAL | MB_SETFOREGROUND;
    return IdOfAnswer(MessageBoxW(owner, GetMessage().wc_str(), GetTitle().wc_str(),
                                  buttons | IconOf(style) | place));
}

}  // namespace brelex
