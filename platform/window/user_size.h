// SPDX-License-Identifier: MIT
#pragma once

#include <wx/gdicmn.h>

class wxTopLevelWindow;

namespace brelex {

/// Lets the user change the size of a window that is on the screen, but not make its inside smaller
/// than `smallest` pixels. Its inside gets a size of `size` pixels.
void LetUserResize(wxTopLevelWindow& window, const wxSize& smallest, const wxSize& size);

/// Keeps the size of the window from the user again. Call before you give it another size.
void KeepSizeFromUser(wxTopLevelWindow& window);

}  // namespace brelex
