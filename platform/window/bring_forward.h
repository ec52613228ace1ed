// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class wxFrame;

namespace brelex {

/// Shows a window in front of the others, whether it is hidden, minimized or covered, and gives it
/// the keyboard.
void BringForward(wxFrame& window);

/// Gives the keyboard to a window that was just opened over `window` at the request of the desktop,
/// if that needs a token and there is one; see UseActivationToken.
void BringOpenedForward(wxFrame& window);

/// Whether the window is shown and not minimized. Windows may restore a window without telling the
/// toolkit, so on Windows this asks the system itself.
[[nodiscard]] bool SystemShows(const wxFrame& window);

/// Whether a shown window is minimized, as far as the desktop tells. Wayland does not tell. There,
/// a window may be minimized unless the user is working in it or in a window over it.
[[nodiscard]] bool MayBeMinimized(const wxFrame& window);

/// Calls `act` when the user presses the button for minimizing that GTK draws in the title of a
/// window on Wayland, which reports nothing of it. `act` runs before the window is minimized and
/// may be called as long as the window exists. Elsewhere this does nothing.
void OnMinimizeButton(wxFrame& window, const std::function<void()>& act);

/// Whether this desktop can keep a window above the windows of other programs. Wayland cannot.
[[nodiscard]] bool CanStayOnTop();

}  // namespace brelex
