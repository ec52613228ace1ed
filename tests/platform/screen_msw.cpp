// SPDX-License-Identifier: MIT
#include "tests/platform/screen.h"

#include <wx/toplevel.h>

#include <windows.h>
#include <commctrl.h>

#include "platform/acronym_list.h"

namespace brelex {

wxRect FrameOnScreen(const wxTopLevelWindow& window) {
    RECT frame{};
    GetWindowRect(window.GetHWND(), &frame);
    return {frame.left, frame.top, frame.right - frame.left, frame.bottom - frame.top};
}

bool IsKeptAbove(const wxTopLevelWindow& window) {
    return (GetWindowLongW(window.GetHWND(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

wxRect MenuOnScreen() {
    HWND const menu = FindWindowW(L"#32768", nullptr);  // the class of menus
    RECT place{};
    if (menu == nullptr || IsWindowVisible(menu) == 0 || GetWindowRect(menu, &place) == 0) {
        return {};
    }
    return {place.left, place.top, place.right - place.left, place.bottom - place.top};
}

ListView ViewOf(AcronymList& list) {
    HWND const control = list.Window().GetHWND();
    RECT row{};
    row.left = LVIR_BOUNDS;
    SendMessageW(control, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
    RECT inside{};
    GetClientRect(control, &inside);
    return {static_cast<int>(row.bottom - row.top), static_cast<int>(inside.bottom),
            static_cast<int>(row.top)};
}

}  // namespace brelex
