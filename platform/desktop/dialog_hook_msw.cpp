// SPDX-License-Identifier: MIT
#include "platform/desktop/dialog_hook_msw.h"

#include <utility>

#include <wx/icon.h>

namespace brelex {

namespace {

// The system passes no user data to the hook's procedure, so the current hook is kept here.
DialogHook*& Current() {
    static thread_local DialogHook* current = nullptr;
    return current;
}

}  // namespace

DialogHook::DialogHook(std::function<void(HWND)> adjust)
    : adjust_(std::move(adjust)),
      hook_(SetWindowsHookExW(WH_CBT, &OnHook, nullptr, GetCurrentThreadId())) {
    Current() = this;
}

DialogHook::~DialogHook() {
    Current() = nullptr;
    UnhookWindowsHookEx(hook_);
}

LRESULT CALLBACK DialogHook::OnHook(int code, WPARAM wParam, LPARAM lParam) {
    DialogHook* const self = Current();
    if (code == HCBT_ACTIVATE && self != nullptr) {
        Current() = nullptr;  // only the first window counts
        self->adjust_(reinterpret_cast<HWND>(wParam));
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void GiveIcons(HWND window, const wxIconBundle& icons) {
    const auto set = [&](WPARAM which, int metric) {
        const int size = GetSystemMetrics(metric);
        const wxIcon icon = icons.GetIcon(wxSize(size, size));
        SendMessageW(window, WM_SETICON, which, reinterpret_cast<LPARAM>(icon.GetHICON()));
    };
    set(ICON_BIG, SM_CXICON);
    set(ICON_SMALL, SM_CXSMICON);
}

}  // namespace brelex
