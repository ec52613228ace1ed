// SPDX-License-Identifier: MIT
#pragma once

class wxWindow;

namespace brelex {

/// Brings a shown top-level window and all that changed in it onto the screen before it returns,
/// or gives up after a fifth of a second. For use while the program is busy.
void PaintNow(wxWindow& window);

}  // namespace brelex
