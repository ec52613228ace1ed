// SPDX-License-Identifier: MIT
#include "tests/platform/system_box.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include <wx/bitmap.h>
#include <wx/dcmemory.h>

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

BOOL CALLBACK KeepIfBox(HWND window, LPARAM found) {
    if (IsWindowVisible(window) == 0 || ClassOf(window) != L"#32770") {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

}  // namespace

SystemWindow OpenMessageBox() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), &KeepIfBox, reinterpret_cast<LPARAM>(&found));
    return found;
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
