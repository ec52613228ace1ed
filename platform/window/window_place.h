// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/gdicmn.h>

class wxTopLevelWindow;

namespace brelex {

/// The place of a window on the screen, in pixels, including the frame that the desktop has put
/// round it. For a hidden window the frame may be missing.
[[nodiscard]] wxRect FrameOf(const wxTopLevelWindow& window);

/// The size in pixels that a dialog has, including its frame, once it is as large as it was asked
/// to be.
[[nodiscard]] wxSize FrameSizeOf(const wxTopLevelWindow& dialog);

/// Moves a window, shown or hidden, so that its frame begins at `corner`.
void MoveFrame(wxTopLevelWindow& window, const wxPoint& corner);

/// Calls `act` each time a window has been shown, is on the screen and has its frame, for as long
/// as the window lives; not when the desktop only restores it. Call once for each window.
void OnEachShowing(wxTopLevelWindow& window, const std::function<void()>& act);

}  // namespace brelex
