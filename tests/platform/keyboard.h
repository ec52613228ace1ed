// SPDX-License-Identifier: MIT
#pragma once

class wxTopLevelWindow;

namespace brelex {

/// Whether simulated keys arrive in a window. Asks the system, because the toolkit may be ahead of
/// it.
[[nodiscard]] bool HasKeyboard(wxTopLevelWindow& window);

/// Waits until all simulated keys and mouse events so far are in this program's queue.
void AwaitSimulatedInput();

/// Presses Ctrl+A.
void PressSelectAll();

/// Presses and releases the Enter key of the numeric keypad.
void PressKeypadEnter();

}  // namespace brelex
