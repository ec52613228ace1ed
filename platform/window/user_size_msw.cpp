// SPDX-License-Identifier: MIT
#include "platform/window/user_size.h"

#include <wx/toplevel.h>

#include <windows.h>

namespace brelex {

namespace {

// The frame that one can drag may be wider. The inside keeps its size. The toolkit's style for this
// would add a grip to dialogs, which lies over the contents and has no name for screen readers.
void GiveFrame(wxTopLevelWindow& window, bool canDrag) {
    const wxSize inside = window.GetClientSize();
    HWND handle = window.GetHWND();
    const LONG style = GetWindowLongW(handle, GWL_STYLE);
    SetWindowLongW(handle, GWL_STYLE, canDrag ? style | WS_THICKFRAME : style & ~WS_THICKFRAME);
    SetWindowPos(handle, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    window.SetClientSize(inside);
}

}  // namespace

void LetUserResize(wxTopLevelWindow& window, const wxSize& smallest, const wxSize& size) {
    GiveFrame(window, true);
    window.SetMinClientSize(smallest);
    window.SetClientSize(size);
}

void KeepSizeFromUser(wxTopLevelWindow& window) {
    window.SetMinSize(wxDefaultSize);
    GiveFrame(window, false);
}

}  // namespace brelex
