// SPDX-License-Identifier: MIT
#pragma once

class wxWindow;

namespace brelex {

/// Waits until a top-level window that was just shown is on the screen, but at most a fifth of a
/// second. Events run meanwhile where the desktop has to show the window.
void PaintFirst(wxWindow& window);

/// Paints what has changed in a top-level window before it returns. For use while the program is
/// busy: no events run.
void PaintNow(wxWindow& window);

}  // namespace brelex
