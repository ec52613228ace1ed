// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class wxWindow;

namespace brelex {

/// Calls `act` where other windows show a menu: when the right mouse button is pressed on `window`,
/// and on Shift+F10 and the menu key. The toolkit's own menu does not appear.
void OnMenuRequest(wxWindow& window, const std::function<void()>& act);

}  // namespace brelex
