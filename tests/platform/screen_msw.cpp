// SPDX-License-Identifier: MIT
#include "tests/platform/screen.h"

#include <array>
#include <string>

#include <wx/bitmap.h>
#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/toplevel.h>

#include <windows.h>
#include <commctrl.h>

#include "platform/list/entry_list_control.h"
#include "platform/system/wide_text.h"

namespace brelex {

wxRect FrameOnScreen(const wxTopLevelWindow& window) {
    RECT frame{};
    GetWindowRect(window.GetHWND(), &frame);
    return {frame.left, frame.top, frame.right - frame.left, frame.bottom - frame.top};
}

wxSize ScreenSize() {
    return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

bool IsKeptAbove(const wxTopLevelWindow& window) {
    return (GetWindowLongW(window.GetHWND(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

namespace {

BOOL CALLBACK LookForTip(HWND window, LPARAM found) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    if (std::wstring(name.data()) != TOOLTIPS_CLASSW || IsWindowVisible(window) == 0) {
        return TRUE;
    }
    std::array<wchar_t, 300> text{};
    TOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.lpszText = text.data();
    SendMessageW(window, TTM_GETCURRENTTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    SendMessageW(window, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
    RECT place{};
    GetWindowRect(window, &place);
    *reinterpret_cast<ToolTipView*>(found) = {
        Utf8OfWide(text.data()),
        {place.left, place.top, place.right - place.left, place.bottom - place.top}};
    return FALSE;
}

}  // namespace

wxImage PictureOnScreen(wxWindow& window) {
    const wxSize size = window.GetClientSize();
    wxClientDC screen(&window);
    wxBitmap bitmap(size, 24);
    wxMemoryDC dc(bitmap);
    dc.Blit(0, 0, size.x, size.y, &screen, 0, 0);
    dc.SelectObject(wxNullBitmap);
    return bitmap.ConvertToImage();
}

ToolTipView ToolTipOnScreen() {
    ToolTipView tip;
    EnumThreadWindows(GetCurrentThreadId(), &LookForTip, reinterpret_cast<LPARAM>(&tip));
    return tip;
}

wxRect MenuOnScreen() {
    HWND const menu = FindWindowW(L"#32768", nullptr);  // the class of menus
    RECT place{};
    if (menu == nullptr || IsWindowVisible(menu) == 0 || GetWindowRect(menu, &place) == 0) {
        return {};
    }
    return {place.left, place.top, place.right - place.left, place.bottom - place.top};
}

ListView ViewOf(EntryListControl& list) {
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
