// SPDX-License-Identifier: MIT
#pragma once

class wxTopLevelWindow;

namespace brelex {

/// Whether simulated keys arrive in a window: the system's view, which the toolkit may be ahead of.
[[nodiscard]] bool HasKeyboard(wxTopLevelWindow& window);

/// Presses Ctrl+A.
void PressSelectAll();

/// Presses and releases the Enter key of the keypad.
void PressKeypadEnter();

}  // namespace brelex
