// SPDX-License-Identifier: MIT
#include "platform/system_desktop.h"

#include <cstdint>

#include <windows.h>
#include <shellapi.h>

#include "platform/wide_text.h"

namespace brelex {

namespace {

HWND WindowTitled(const std::string& title) {
    return FindWindowW(nullptr, WideOfUtf8(title).c_str());
}

// No verb is the default one.
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
