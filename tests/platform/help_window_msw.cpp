// SPDX-License-Identifier: MIT
#include "tests/platform/help_window.h"

#include <array>

#include <wx/notebook.h>

#include <windows.h>
#include <commctrl.h>

#include "platform/system/wide_text.h"

namespace brelex {

wxRect PlaceOfWindow(const std::string& title) {
    HWND const window = FindWindowW(nullptr, WideOfUtf8(title).c_str());
    RECT inside{};
    POINT corner{};
    if (window == nullptr || GetClientRect(window, &inside) == 0 ||
        ClientToScreen(window, &corner) == 0) {
        return {};
    }
    return {corner.x, corner.y, inside.right, inside.bottom};
}

bool WindowHasKeyboard(const std::string& title) {
    std::array<wchar_t, MAX_PATH> text{};
    GetWindowTextW(GetForegroundWindow(), text.data(), static_cast<int>(text.size()));
    return WideOfUtf8(title) == text.data();
}

namespace {

// What debuggers use; no header has it.
void CallForProcess(const char* function, long process) {
    using Function = LONG(NTAPI*)(HANDLE);
    const auto call = reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), function)));
    HANDLE const handle = OpenProcess(PROCESS_SUSPEND_RESUME, FALSE, static_cast<DWORD>(process));
    if (call != nullptr && handle != nullptr) {
        call(handle);
    }
    CloseHandle(handle);
}

}  // namespace

// Without OLE, which the toolkit uses: its talk with the other program, which at the same time may
// be copying once more, has that one busy for ever now and then under Wine.
std::string CopiedText() {
    std::string text;
    if (OpenClipboard(nullptr) != 0) {
        if (HANDLE const data = GetClipboardData(CF_UNICODETEXT)) {
            text = Utf8OfWide(static_cast<const wchar_t*>(GlobalLock(data)));
            GlobalUnlock(data);
        }
        CloseClipboard();
    }
    return text;
}

void EmptyClipboard() {
    if (OpenClipboard(nullptr) != 0) {
        ::EmptyClipboard();
        CloseClipboard();
    }
}

bool IsAsleep(long) {
    return true;
}

Standstill::Standstill(long process) : process_(process) {
    CallForProcess("NtSuspendProcess", process_);
}

Standstill::~Standstill() {
    CallForProcess("NtResumeProcess", process_);
}

bool ShowsAllTabs(const wxNotebook& notebook) {
    RECT last{};
    SendMessageW(notebook.GetHWND(), TCM_GETITEMRECT, notebook.GetPageCount() - 1,
                 reinterpret_cast<LPARAM>(&last));
    return last.right > 0 && last.right <= notebook.GetSize().x;
}

LargeFont::LargeFont() = default;
LargeFont::~LargeFont() = default;

}  // namespace brelex
