// SPDX-License-Identifier: MIT
#include "platform/paint_now.h"

#include <wx/window.h>

namespace brelex {

void PaintNow(wxWindow& window) {
    window.Refresh();
    window.Update();
}

}  // namespace brelex
