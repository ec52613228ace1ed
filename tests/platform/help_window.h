// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <wx/gdicmn.h>

class wxNotebook;

namespace brelex {

/// Where on the screen the inside of a window of any program with this title is; empty if there is
/// no such window.
[[nodiscard]] wxRect PlaceOfWindow(const std::string& title);

/// Whether keys go to the window of any program with this title.
[[nodiscard]] bool WindowHasKeyboard(const std::string& title);

/// The text that another program has put on the clipboard; empty if there is none.
[[nodiscard]] std::string CopiedText();

/// Takes everything off the clipboard.
void EmptyClipboard();

/// Whether a program does nothing just now, as far as the system tells.
[[nodiscard]] bool IsAsleep(long process);

/// A program stands still as long as this lives, and what the user does to it piles up. It should
/// be asleep: GTK has the X server to itself for moments, and a program that stood still in one of
/// them would stop us, too.
class Standstill {
  public:
    explicit Standstill(long process);
    Standstill(const Standstill&) = delete;
    Standstill& operator=(const Standstill&) = delete;
    ~Standstill();

  private:
    long process_;
};

/// Whether all tabs are to be seen at once.
[[nodiscard]] bool ShowsAllTabs(const wxNotebook& notebook);

/// As long as it lives, new windows have a large font where a program can say so: on Linux.
class LargeFont {
  public:
    LargeFont();
    LargeFont(const LargeFont&) = delete;
    LargeFont& operator=(const LargeFont&) = delete;
    ~LargeFont();

  private:
    std::string before_;
};

}  // namespace brelex
