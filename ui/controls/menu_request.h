// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class wxWindow;

namespace brelex {

/// Calls `act` when the user does what opens a menu elsewhere: presses the right mouse button on
/// `window`, Shift+F10 or the menu key. Suppresses the toolkit's own menu.
void OnMenuRequest(wxWindow& window, const std::function<void()>& act);

}  // namespace brelex
