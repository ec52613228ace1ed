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

/// Lets the controls of a top-level window change their looks at once. Otherwise, a desktop may
/// fade each change in, which means painting it a dozen times.
void NeverFade(wxWindow& window);

}  // namespace brelex
