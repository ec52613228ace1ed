// SPDX-License-Identifier: MIT
#pragma once

class wxKeyEvent;
class wxWindow;
class wxTopLevelWindow;

namespace brelex {

/// Keeps the Enter key that has started a search from doing more: pressed again while the search
/// runs, or still held when it has ended, it does nothing.
class HeldEnter {
  public:
    /// Watches the keys of a window whose controls all exist. Must live as long as it.
    explicit HeldEnter(wxTopLevelWindow& window);
    HeldEnter(const HeldEnter&) = delete;
    HeldEnter& operator=(const HeldEnter&) = delete;

    void SearchBegins();
    void SearchEnds();

    /// Whether a button that is pressed now, while a search runs, is pressed with Enter. Windows
    /// does that without asking the window for its keys.
    [[nodiscard]] bool PressesButton() const;

  private:
    void WatchReleases(wxWindow& window);
    void OnKey(wxKeyEvent& event);

    bool isSearching_ = false;
    bool isHeld_ = false;  // since a search
};

}  // namespace brelex
