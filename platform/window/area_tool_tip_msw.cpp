// SPDX-License-Identifier: MIT
#include "platform/window/area_tool_tip.h"

#include <wx/window.h>

namespace brelex {

// A tooltip appears where the mouse comes to rest. If the old one were not removed first, only its
// text would change.
void SetAreaToolTip(wxWindow& window, const wxRect& /*area*/, const wxString& text) {
    window.UnsetToolTip();
    if (!text.empty()) {
        window.SetToolTip(text);
    }
}

}  // namespace brelex
