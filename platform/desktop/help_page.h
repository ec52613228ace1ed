// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

class wxTopLevelWindow;

namespace brelex {

/// A window of any program, as the system numbers it: X11's number, or a handle of Windows.
using SystemWindow = std::uintptr_t;

/// Tells the help viewer whose window it is to turn to a page of its book. Does not wait for that.
void TellHelpPage(SystemWindow window, const std::string& page);

/// Hears in the help viewer, as long as its window lives, which pages it is told to turn to. They
/// come from outside: whoever is on the same desktop can send any text.
void HearHelpPages(wxTopLevelWindow& window, std::function<void(const std::string& page)> turnTo);

}  // namespace brelex
