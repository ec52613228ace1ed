// SPDX-License-Identifier: MIT
#include "platform/window/enter_key.h"

#include <wx/utils.h>

namespace brelex {

// GTK passes the key itself to the window before it presses a button, so nobody needs the past.
bool WasEnterDown() {
    return wxGetKeyState(WXK_RETURN) || wxGetKeyState(WXK_NUMPAD_ENTER);
}

}  // namespace brelex
