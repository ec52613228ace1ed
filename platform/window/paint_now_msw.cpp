// SPDX-License-Identifier: MIT
#include "platform/window/paint_now.h"

#include <wx/window.h>

#include <windows.h>

namespace brelex {

void PaintFirst(wxWindow& window) {
    PaintNow(window);
}

void PaintNow(wxWindow& window) {
    RedrawWindow(window.GetHWND(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

// The toolkit's controls do not fade.
void NeverFade(wxWindow& /*window*/) {}

}  // namespace brelex
