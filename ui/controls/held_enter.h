// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

class wxKeyEvent;
class wxTopLevelWindow;
class wxWindow;

namespace brelex {

/// Keeps the Enter key that starts a search from stopping it or starting another. Enter does
/// nothing while the user holds it, or when the user presses it again at once. Pressed later, it
/// acts as usual.
class HeldEnter {
  public:
    /// Watches the keys of a window. All its controls must exist already, and the window must
    /// destroy them before this object is destroyed.
    explicit HeldEnter(wxTopLevelWindow& window);
    HeldEnter(const HeldEnter&) = delete;
    HeldEnter& operator=(const HeldEnter&) = delete;

    void SearchBegins();
    void SearchEnds();

    /// The user can see now that a search is running. Before that, any Enter is still meant for its
    /// start.
    void SearchIsShown() { lastEnter_ = Clock::now(); }

    /// Whether a button pressed now, during a search, was pressed by the Enter that started the
    /// search or by another one right after it. Windows presses buttons without passing the key to
    /// the window.
    [[nodiscard]] bool PressesButton() const;

  private:
    using Clock = std::chrono::steady_clock;

    void WatchReleases(wxWindow& window);
    void OnKey(wxKeyEvent& event);
    [[nodiscard]] bool IsSoonAfter() const;

    bool isSearching_ = false;
    bool isHeld_ = false;  // since the search started
    Clock::time_point lastEnter_;
};

}  // namespace brelex
