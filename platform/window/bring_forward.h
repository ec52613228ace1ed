// SPDX-License-Identifier: MIT
#pragma once

class wxFrame;

namespace brelex {

/// Shows a window, whether it is hidden, minimised or covered, in front of the others and gives it
/// the keyboard.
void BringForward(wxFrame& window);

/// Whether the window is up, not minimised. Windows is asked itself, as it may bring a window up
/// without the toolkit's noticing; on GTK the toolkit knows.
[[nodiscard]] bool SystemShows(const wxFrame& window);

}  // namespace brelex
