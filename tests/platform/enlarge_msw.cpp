// SPDX-License-Identifier: MIT
#include "tests/platform/enlarge.h"

#include <wx/toplevel.h>

#include <windows.h>

#include "tests/platform/screen.h"

namespace brelex {

void EnlargeAsUser(wxTopLevelWindow& window, const wxSize& by) {
    if (!CanBeResized(SystemWindowOf(window))) {
        return;
    }
    const wxSize size = window.GetSize() + by;
    SetWindowPos(window.GetHWND(), nullptr, 0, 0, size.x, size.y, SWP_NOMOVE | SWP_NOZORDER);
}

}  // namespace brelex
