// SPDX-License-Identifier: MIT
#include "platform/desktop/system_desktop.h"

#include <cstdint>

#include <windows.h>
#include <shellapi.h>

#include "platform/desktop/help_page.h"
#include "platform/system/wide_text.h"

namespace brelex {

namespace {

HWND WindowTitled(const std::string& title) {
    return FindWindowW(nullptr, WideOfUtf8(title).c_str());
}

// A null verb means the default one.
bool RunVerb(const wchar_t* verb, const std::string& target) {
    HINSTANCE const result = ShellExecuteW(GetActiveWindow(), verb, WideOfUtf8(target).c_str(),
                                           nullptr, nullptr, SW_SHOWNORMAL);
    constexpr std::intptr_t kGreatestError = 32;
    return reinterpret_cast<std::intptr_t>(result) > kGreatestError;
}

}  // namespace

bool SystemDesktop::BringWindowForward(const std::string& title) {
    HWND const window = WindowTitled(title);
    if (window == nullptr) {
        return false;
    }
    ShowWindow(window, SW_RESTORE);
    SetForegroundWindow(window);
    return true;
}

void SystemDesktop::TurnToPage(const std::string& title, const std::string& page) {
    if (HWND const window = WindowTitled(title)) {
        TellHelpPage(reinterpret_cast<SystemWindow>(window), page);
    }
}

bool SystemDesktop::StartHelpViewer(const std::string& folder, const std::string& book,
                                    const std::string& page) {
    const std::wstring viewer = WideOfUtf8(folder + "brelex-help.exe");
    // A file name contains no quotation marks and a page no blanks.
    std::wstring command = L"\"" + viewer + L"\" \"" + WideOfUtf8(book) + L"\"";
    if (!page.empty()) {
        command += L" " + WideOfUtf8(page);
    }
    STARTUPINFOW how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION started{};
    if (CreateProcessW(viewer.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &how, &started) == 0) {
        return false;
    }
    AllowSetForegroundWindow(started.dwProcessId);
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return true;
}

void SystemDesktop::AskWindowToClose(const std::string& title) {
    if (HWND const window = WindowTitled(title)) {
        PostMessageW(window, WM_CLOSE, 0, 0);
    }
}

bool SystemDesktop::Open(const std::string& target) {
    return RunVerb(nullptr, target);
}

void SystemDesktop::OpenToRead(const std::string& path) {
    RunVerb(L"open", path);
}

}  // namespace brelex
