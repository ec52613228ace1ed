// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/iconbndl.h>

#include <windows.h>

namespace brelex {

/// While it lives, calls a function with the first window that this thread activates, just before
/// it becomes active. That window can be a dialog that the system itself makes and runs. Only one
/// lives at a time.
class DialogHook {
  public:
    explicit DialogHook(std::function<void(HWND)> adjust);
    DialogHook(const DialogHook&) = delete;
    DialogHook& operator=(const DialogHook&) = delete;
    ~DialogHook();

  private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam);

    std::function<void(HWND)> adjust_;
    HHOOK hook_ = nullptr;
};

/// Gives a window of the system the icons of `icons`, which must outlive it.
void GiveIcons(HWND window, const wxIconBundle& icons);

}  // namespace brelex
