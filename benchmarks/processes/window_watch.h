// SPDX-License-Identifier: MIT
#pragma once

#include <X11/Xlib.h>
#include <chrono>
#include <string>
#include <sys/types.h>

/// Follows the first window with a certain title that appears on the screen.
class WindowWatch {
  public:
    /// Follows the window whose title begins with `title`. Create this before the window's program.
    explicit WindowWatch(std::string title);
    WindowWatch(const WindowWatch&) = delete;
    WindowWatch& operator=(const WindowWatch&) = delete;
    ~WindowWatch();

    [[nodiscard]] Display* XDisplay() const { return display_; }

    [[nodiscard]] Window Id() const { return window_; }

    [[nodiscard]] bool IsShown() const { return isShown_; }

    /// Whether the program has painted all of the window since it was shown.
    [[nodiscard]] bool IsPainted() const { return isPainted_; }

    /// Takes events until `condition` holds. Returns false if that takes longer than `patience`.
    template <typename Condition>
    bool WaitFor(const Condition& condition, std::chrono::milliseconds patience) {
        const auto end = std::chrono::steady_clock::now() + patience;
        while (!condition() && std::chrono::steady_clock::now() < end) {
            TakeNextEvent();
        }
        return condition();
    }

  private:
    void TakeNextEvent();
    void TakeMapped(Window window);
    void TakeDamage(const XEvent& event);
    [[nodiscard]] bool HasTitle(Window window) const;

    Display* display_;
    std::string title_;
    int firstDamageEvent_ = 0;
    Window window_ = None;
    bool isShown_ = false;
    bool isPainted_ = false;
    int paintedTo_ = 0;
};

/// Starts a program. `arguments` begins with its path and ends with a null.
[[nodiscard]] pid_t StartProgram(char** arguments);

/// Ends a program and waits until it has ended.
void EndProgram(pid_t program);
