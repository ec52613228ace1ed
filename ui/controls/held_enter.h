// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

class wxKeyEvent;
class wxTopLevelWindow;
class wxWindow;

namespace brelex {

/// Keeps the Enter key that starts a search from stopping it or starting another. Enter does
/// nothing while it is held, or when it is pressed again at once. Pressed later, it acts as usual.
class HeldEnter {
  public:
    /// Watches the keys of a window whose controls all exist. The window must destroy its controls
    /// before this goes.
    explicit HeldEnter(wxTopLevelWindow& window);
    HeldEnter(const HeldEnter&) = delete;
    HeldEnter& operator=(const HeldEnter&) = delete;

    void SearchBegins();
    void SearchEnds();

    /// Whether a button that is pressed now, while a search runs, is pressed by the Enter that
    /// started the search, or by another one right after it. Windows presses buttons without
    /// passing the key to the window.
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
