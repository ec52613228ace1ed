// SPDX-License-Identifier: MIT
#include "platform/window/area_tool_tip.h"

#include <wx/window.h>

namespace brelex {

// A tool tip appears where the mouse comes to rest. One that is shown already would only change its
// text.
void SetAreaToolTip(wxWindow& window, const wxRect& /*area*/, const wxString& text) {
    window.UnsetToolTip();
    if (!text.empty()) {
        window.SetToolTip(text);
    }
}

}  // namespace brelex
