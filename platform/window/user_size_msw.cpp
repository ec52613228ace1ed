// SPDX-License-Identifier: MIT
#include "platform/window/user_size.h"

#include <wx/toplevel.h>

namespace brelex {

namespace {

// The frame that one can drag is wider. The inside keeps its size.
void GiveFrame(wxTopLevelWindow& window, bool canDrag) {
    const wxSize inside = window.GetClientSize();
    const long style = window.GetWindowStyleFlag();
    window.SetWindowStyleFlag(canDrag ? style | wxRESIZE_BORDER : style & ~wxRESIZE_BORDER);
    window.SetClientSize(inside);
}

}  // namespace

void LetUserResize(wxTopLevelWindow& window, const wxSize& smallest) {
    GiveFrame(window, true);
    window.SetMinClientSize(smallest);
}

void KeepSizeFromUser(wxTopLevelWindow& window) {
    window.SetMinSize(wxDefaultSize);
    GiveFrame(window, false);
}

}  // namespace brelex
