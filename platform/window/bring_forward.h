// SPDX-License-Identifier: MIT
#pragma once

class wxFrame;

namespace brelex {

/// Shows a window in front of the others, whether it is hidden, minimized or covered, and gives it
/// the keyboard.
void BringForward(wxFrame& window);

/// Whether the window is shown and not minimized. Windows may restore a window without telling the
/// toolkit, so on Windows this asks the system itself.
[[nodiscard]] bool SystemShows(const wxFrame& window);

}  // namespace brelex
