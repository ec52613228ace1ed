// SPDX-License-Identifier: MIT
#include "platform/window/paint_now.h"

#include <wx/window.h>

namespace brelex {

void PaintFirst(wxWindow& window) {
    PaintNow(window);
}

void PaintNow(wxWindow& window) {
    window.Refresh();
    window.Update();
}

}  // namespace brelex
