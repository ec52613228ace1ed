// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/iconbndl.h>

#include <windows.h>

namespace brelex {

/// During its lifetime, calls a function with the first window that this thread activates, just
/// before it becomes active. That window can be a dialog that the system itself creates and runs.
/// Only one hook can exist at a time.
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

/// Gives a window of the system the icons in `icons`, which must outlive the window.
void GiveIcons(HWND window, const wxIconBundle& icons);

}  // namespace brelex
