// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/gdicmn.h>

class wxTopLevelWindow;

namespace brelex {

/// The place of a window on the screen, in pixels, including the frame that the desktop has put
/// around it. For a hidden window the frame may be missing.
[[nodiscard]] wxRect FrameOf(const wxTopLevelWindow& window);

/// The size in pixels, including its frame, that a dialog will have once it has reached the size it
/// was asked to have.
[[nodiscard]] wxSize FrameSizeOf(const wxTopLevelWindow& dialog);

/// Moves a window, shown or hidden, so that the upper left corner of its frame is at `corner`.
void MoveFrame(wxTopLevelWindow& window, const wxPoint& corner);

/// Calls `act` each time the window has been shown, is on the screen and has its frame, but not
/// when the desktop merely restores it. Works for the lifetime of the window. Call once for each
/// window.
void OnEachShowing(wxTopLevelWindow& window, const std::function<void()>& act);

/// Calls `act` each time the desktop has put another frame around the window, if it does that only
/// after it was asked to. Works for the lifetime of the window. Call once for each window.
void OnEachNewFrame(wxTopLevelWindow& window, const std::function<void()>& act);

}  // namespace brelex
