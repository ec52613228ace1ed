// SPDX-License-Identifier: MIT
#include "tests/platform/system_window.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <oleacc.h>
#include <utility>

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>

#include <windows.h>

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

std::wstring ClassOf(HWND window) {
    std::wstring name(100, L'\0');
    name.resize(static_cast<std::size_t>(
        GetClassNameW(window, name.data(), static_cast<int>(name.size()))));
    return name;
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

std::vector<HWND> Children(HWND window, const wchar_t* className) {
    std::vector<HWND> children;
    for (HWND child = FindWindowExW(window, nullptr, className, nullptr); child != nullptr;
         child = FindWindowExW(window, child, className, nullptr)) {
        children.push_back(child);
    }
    return children;
}

bool IsIcon(HWND label) {
    return (GetWindowLongW(label, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
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

LPCWSTR IconName(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Information:
            return IDI_INFORMATION;
        case MessageIcon::Question:
            return IDI_QUESTION;
        case MessageIcon::Exclamation:
            return IDI_EXCLAMATION;
        default:
            return IDI_HAND;
    }
}

}  // namespace

SystemWindow SystemWindowOf(const wxTopLevelWindow& window) {
    return window.GetHWND();
}

SystemWindow OpenMessageBox() {
    return FindOpen([](HWND window) { return ClassOf(window) == L"#32770"; });
}

SystemWindow OpenWindow(const std::string& title) {
    return FindOpen([&](HWND window) { return TextOf(window) == title; });
}

bool TakesKeys(SystemWindow window) {
    HWND const focus = GetFocus();
    return window != nullptr && GetForegroundWindow() == Handle(window) &&
           (focus == Handle(window) || IsChild(Handle(window), focus) != 0);
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

bool StaysAbove(SystemWindow window) {
    return (GetWindowLongW(Handle(window), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

bool CanBeResized(SystemWindow window) {
    return (GetWindowLongW(Handle(window), GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX)) != 0;
}

wxImage IconOf(SystemWindow window, int size) {
    const WPARAM which = size > GetSystemMetrics(SM_CXSMICON) ? ICON_BIG : ICON_SMALL;
    const LRESULT icon = SendMessageW(Handle(window), WM_GETICON, which, 0);
    return icon == 0 ? wxImage() : DrawnOver(reinterpret_cast<HICON>(icon), size, *wxBLACK);
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

std::string TitleOfBox(SystemWindow box) {
    return TextOf(Handle(box));
}

std::string TextOfBox(SystemWindow box) {
    std::string text;
    for (HWND const label : Children(Handle(box), L"Static")) {
        if (!IsIcon(label)) {
            text += TextOf(label);
        }
    }
    std::erase(text, '\r');
    return text;
}

std::vector<std::string> ButtonsOfBox(SystemWindow box) {
    std::vector<std::pair<int, std::string>> buttons;  // from left to right
    for (HWND const button : Children(Handle(box), L"Button")) {
        if (IsWindowVisible(button) != 0) {
            std::string text = TextOf(button);
            std::erase(text, '&');
            buttons.emplace_back(RectOf(button).x, text);
        }
    }
    std::sort(buttons.begin(), buttons.end());
    std::vector<std::string> texts;
    texts.reserve(buttons.size());
    for (const auto& [x, text] : buttons) {
        texts.push_back(text);
    }
    return texts;
}

wxRect IconAreaOfBox(SystemWindow box) {
    for (HWND const label : Children(Handle(box), L"Static")) {
        if (IsIcon(label) && IsWindowVisible(label) != 0 &&
            SendMessageW(label, STM_GETICON, 0, 0) != 0) {
            return RectOf(label);
        }
    }
    return {};
}

// The sound does, and what a screen reader says of the icon is its own.
bool TellsItsKind(SystemWindow /*box*/, MessageIcon /*icon*/) {
    return true;
}

wxImage StandardIcon(MessageIcon icon, const wxColour& ground) {
    return DrawnOver(LoadIconW(nullptr, IconName(icon)), GetSystemMetrics(SM_CXICON), ground);
}

void CloseBox(SystemWindow box) {
    EndDialog(Handle(box), IDCANCEL);
}

}  // namespace brelex
