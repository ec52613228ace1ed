// SPDX-License-Identifier: MIT
#include "tests/platform/enlarge.h"

#include <wx/toplevel.h>
#include <wx/uiaction.h>

#include "tests/platform/screen.h"
#include "tests/ui/ui_test_support.h"

namespace brelex {

void EnlargeAsUser(wxTopLevelWindow& window, const wxSize& by) {
    // The window manager gives a window another frame when it may be resized, and may then move it.
    EXPECT_TRUE(ComesToRest(window));
    wxUIActionSimulator user;
    const wxPoint corner =
        window.ClientToScreen(wxPoint(0, 0)) + window.GetClientSize() + wxPoint(-2, 2);
    user.MouseMove(corner);
    user.MouseDown();
    LetEventsArrive();
    for (int part = 1; part <= 4; ++part) {
        user.MouseMove(corner + wxPoint(by.x, by.y) * part / 4);
        LetEventsArrive();
    }
    user.MouseUp();
    LetEventsArrive();
}

}  // namespace brelex
