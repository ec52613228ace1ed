// SPDX-License-Identifier: MIT
#pragma once

class wxTopLevelWindow;

namespace brelex {

/// Whether simulated keys arrive in a window: the system's view, which the toolkit may be ahead of.
[[nodiscard]] bool HasKeyboard(wxTopLevelWindow& window);

/// Waits until the simulated keys and mouse events so far are in this program's queue.
void AwaitSimulatedInput();

/// Presses Ctrl+A.
void PressSelectAll();

/// Presses and releases the Enter key of the keypad.
void PressKeypadEnter();

}  // namespace brelex
