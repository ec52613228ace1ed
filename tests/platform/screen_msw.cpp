// SPDX-License-Identifier: MIT
#include "tests/platform/screen.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <functional>
#include <oleacc.h>
#include <string>

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>

#include <windows.h>
#include <commctrl.h>

#include "platform/list/entry_list_control.h"
#include "platform/system/wide_text.h"

namespace brelex {

namespace {

HWND Handle(SystemWindow window) {
    return static_cast<HWND>(window);
}

std::string TextOf(HWND window) {
    std::wstring text(2000, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return Utf8OfWide(text);
}

struct Search {
    std::function<bool(HWND)> wanted;
    HWND found = nullptr;
};

BOOL CALLBACK KeepIfWanted(HWND window, LPARAM target) {
    auto* const search = reinterpret_cast<Search*>(target);
    if (IsWindowVisible(window) == 0 || !search->wanted(window)) {
        return TRUE;
    }
    search->found = window;
    return FALSE;
}

SystemWindow FindOpen(const std::function<bool(HWND)>& wanted) {
    Search search{wanted};
    EnumThreadWindows(GetCurrentThreadId(), &KeepIfWanted, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

wxRect RectOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

wxImage DrawnOver(HICON icon, int size, const wxColour& ground) {
    wxBitmap bitmap(size, size, 24);
    {
        wxMemoryDC dc(bitmap);
        dc.SetBackground(wxBrush(ground));
        dc.Clear();
        DrawIconEx(static_cast<HDC>(dc.GetHDC()), 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
    }
    return bitmap.ConvertToImage();
}

BOOL CALLBACK LookForTip(HWND window, LPARAM found) {
    std::array<wchar_t, 64> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    if (std::wstring(name.data()) != TOOLTIPS_CLASSW || IsWindowVisible(window) == 0) {
        return TRUE;
    }
    RECT place{};
    GetWindowRect(window, &place);
    if (IsRectEmpty(&place) != 0 || (place.left == 0 && place.top == 0)) {
        return TRUE;  // Wine shows it before it is placed
    }
    std::array<wchar_t, 300> text{};
    TOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.lpszText = text.data();
    SendMessageW(window, TTM_GETCURRENTTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    SendMessageW(window, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
    *reinterpret_cast<ToolTipView*>(found) = {
        Utf8OfWide(text.data()),
        {place.left, place.top, place.right - place.left, place.bottom - place.top}};
    return FALSE;
}

}  // namespace

SystemWindow SystemWindowOf(const wxTopLevelWindow& window) {
    return window.GetHWND();
}

SystemWindow OpenWindow(const std::string& title) {
    return FindOpen([&](HWND window) { return TextOf(window) == title; });
}

bool TakesKeys(SystemWindow window) {
    HWND const focus = GetFocus();
    return window != nullptr && GetForegroundWindow() == Handle(window) &&
           (focus == Handle(window) || IsChild(Handle(window), focus) != 0);
}

SystemWindow OwnerOf(SystemWindow window) {
    return GetWindow(Handle(window), GW_OWNER);
}

wxRect AreaOf(SystemWindow window) {
    return RectOf(Handle(window));
}

bool IsInTaskBar(SystemWindow window) {
    return OwnerOf(window) == nullptr &&
           (GetWindowLongW(Handle(window), GWL_EXSTYLE) & WS_EX_TOOLWINDOW) == 0;
}

bool IsKeptAbove(SystemWindow window) {
    return (GetWindowLongW(Handle(window), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

bool IsKeptAbove(const wxTopLevelWindow& window) {
    return IsKeptAbove(SystemWindowOf(window));
}

bool CanBeResized(SystemWindow window) {
    return (GetWindowLongW(Handle(window), GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX)) != 0;
}

wxImage IconOf(SystemWindow window, int size) {
    const WPARAM which = size > GetSystemMetrics(SM_CXSMICON) ? ICON_BIG : ICON_SMALL;
    const LRESULT icon = SendMessageW(Handle(window), WM_GETICON, which, 0);
    return icon == 0 ? wxImage() : DrawnOver(reinterpret_cast<HICON>(icon), size, *wxBLACK);
}

bool IsOnScreen(const wxTopLevelWindow& window) {
    return IsWindowVisible(window.GetHWND()) != 0 && IsIconic(window.GetHWND()) == 0;
}

wxRect FrameOnScreen(const wxTopLevelWindow& window) {
    RECT frame{};
    GetWindowRect(window.GetHWND(), &frame);
    return {frame.left, frame.top, frame.right - frame.left, frame.bottom - frame.top};
}

wxSize ScreenSize() {
    return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

wxImage PictureOfScreen(const wxRect& area) {
    wxBitmap bitmap(area.GetSize(), 24);
    {
        wxScreenDC screen;
        wxMemoryDC dc(bitmap);
        dc.Blit(wxPoint(0, 0), area.GetSize(), &screen, area.GetPosition());
    }
    return bitmap.ConvertToImage();
}

// An empty area is of one color.
bool ShowsTrayIcon() {
    const wxImage corner = PictureOfScreen({4, 4, 16, 16});
    const unsigned char* const first = corner.GetData();
    const std::size_t bytes = 3 * static_cast<std::size_t>(corner.GetWidth()) *
                              static_cast<std::size_t>(corner.GetHeight());
    return std::memcmp(first, first + 3, bytes - 3) != 0;
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

std::string SpokenNameOf(wxWindow& control) {
    IAccessible* object = nullptr;
    if (FAILED(AccessibleObjectFromWindow(control.GetHWND(), static_cast<DWORD>(OBJID_CLIENT),
                                          IID_IAccessible, reinterpret_cast<void**>(&object)))) {
        return {};
    }
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    object->get_accName(self, &name);
    object->Release();
    std::string text = name == nullptr ? "" : Utf8OfWide(name);
    SysFreeString(name);
    return text;
}

int LeftOfCharacter(const wxTextCtrl& box, long row, long column) {
    HWND const edit = static_cast<HWND>(box.GetHandle());
    const LRESULT index = SendMessageW(edit, EM_LINEINDEX, static_cast<WPARAM>(row), 0) + column;
    // Two signed halves.
    return static_cast<short>(
        LOWORD(SendMessageW(edit, EM_POSFROMCHAR, static_cast<WPARAM>(index), 0)));
}

}  // namespace brelex
