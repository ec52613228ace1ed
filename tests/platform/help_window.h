// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <wx/gdicmn.h>

class wxNotebook;

namespace brelex {

/// The inside of the window with this title on the screen; the window may belong to any program.
/// Empty if there is no such window.
[[nodiscard]] wxRect PlaceOfWindow(const std::string& title);

/// Whether the window of any program with this title receives the keys.
[[nodiscard]] bool WindowHasKeyboard(const std::string& title);

/// The text that another program has put on the clipboard; empty if there is none.
[[nodiscard]] std::string CopiedText();

/// Clears the clipboard.
void EmptyClipboard();

/// Whether a program is idle, as far as the system can tell.
[[nodiscard]] bool IsAsleep(long process);

/// Stops a program for the lifetime of this object, so that what the user does to it piles up. Stop
/// only an idle program: at times GTK has the X server to itself, and a program stopped in such a
/// moment would stop the tests, too.
class Standstill {
  public:
    explicit Standstill(long process);
    Standstill(const Standstill&) = delete;
    Standstill& operator=(const Standstill&) = delete;
    ~Standstill();

  private:
    long process_;
};

/// Whether all tabs are visible at once.
[[nodiscard]] bool ShowsAllTabs(const wxNotebook& notebook);

/// During its lifetime, new windows have a large font, on systems where a program can set one: on
/// Linux.
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
