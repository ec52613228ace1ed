// SPDX-License-Identifier: MIT
#pragma once

class wxWindow;

namespace brelex {

/// Waits until a top-level window that was shown just now is on the screen, or for a fifth of a
/// second. Where the desktop has to do something for that, events run meanwhile.
void PaintFirst(wxWindow& window);

/// Brings what has changed in a top-level window that is on the screen onto it before it returns.
/// For use while the program is busy: no events run.
void PaintNow(wxWindow& window);

}  // namespace brelex
