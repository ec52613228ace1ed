// SPDX-License-Identifier: MIT
#include "platform/window/window_place.h"

#include <wx/toplevel.h>

namespace brelex {

wxRect FrameOf(const wxTopLevelWindow& window) {
    return window.GetScreenRect();
}

wxSize FrameSizeOf(const wxTopLevelWindow& dialog) {
    return dialog.GetSize();
}

void MoveFrame(wxTopLevelWindow& window, const wxPoint& corner) {
    window.Move(corner);
}

void OnEachShowing(wxTopLevelWindow& window, const std::function<void()>& act) {
    window.Bind(wxEVT_SHOW, [act](wxShowEvent& event) {
        event.Skip();
        if (event.IsShown()) {
            act();
        }
    });
}

// Windows changes the frame at once.
void OnEachNewFrame(wxTopLevelWindow& /*window*/, const std::function<void()>& /*act*/) {}

}  // namespace brelex
