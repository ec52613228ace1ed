// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

class wxKeyEvent;
class wxTopLevelWindow;
class wxWindow;

namespace brelex {

/// Keeps the Enter key that starts a search from stopping it, or from starting another: held, or
/// pressed again at once, it does nothing. An Enter later on acts as any other.
class HeldEnter {
  public:
    /// Watches the keys of a window whose controls all exist, and which must be done with its
    /// controls before this goes.
    explicit HeldEnter(wxTopLevelWindow& window);
    HeldEnter(const HeldEnter&) = delete;
    HeldEnter& operator=(const HeldEnter&) = delete;

    void SearchBegins();
    void SearchEnds();

    /// Whether a button that is pressed now, while a search runs, is pressed with the Enter that
    /// started it or the next one at once. Windows presses buttons without asking the window for
    /// its keys.
    [[nodiscard]] bool PressesButton() const;

  private:
    using Clock = std::chrono::steady_clock;

    void WatchReleases(wxWindow& window);
    void OnKey(wxKeyEvent& event);
    [[nodiscard]] bool IsSoonAfter() const;

    bool isSearching_ = false;
    bool isHeld_ = false;  // since a search
    Clock::time_point lastEnter_;
};

}  // namespace brelex
