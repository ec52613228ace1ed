// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

class wxTopLevelWindow;

namespace brelex {

/// A window of any program, by its handle. The whole file is for Windows only.
using SystemWindow = std::uintptr_t;

/// Tells the help viewer with this window to turn to a page of its book. Does not wait for that.
void TellHelpPage(SystemWindow window, const std::string& page);

/// Calls `turnTo` in the help viewer with each page that it is told to turn to, for the lifetime of
/// its window. Do not trust the page: any program on the same desktop can send any text.
void HearHelpPages(wxTopLevelWindow& window, std::function<void(const std::string& page)> turnTo);

}  // namespace brelex
