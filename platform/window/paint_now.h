// SPDX-License-Identifier: MIT
#pragma once

class wxWindow;

namespace brelex {

/// Waits until a top-level window that was just shown is on the screen, but at most a fifth of a
/// second. Events run in the meantime if the desktop has to show the window.
void PaintFirst(wxWindow& window);

/// Paints all changes in a top-level window before it returns. Meant for a busy program: no events
/// run.
void PaintNow(wxWindow& window);

}  // namespace brelex
