// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/gdicmn.h>

class wxTopLevelWindow;

namespace brelex {

/// Where a window stands on the screen, in pixels, with the frame that the desktop has put round
/// it. Of a hidden window the frame may be missing.
[[nodiscard]] wxRect FrameOf(const wxTopLevelWindow& window);

/// The size in pixels that a dialog has with its frame once it is as large as it was asked to be.
[[nodiscard]] wxSize FrameSizeOf(const wxTopLevelWindow& dialog);

/// Moves a window, shown or hidden, so that its frame begins at `corner`.
void MoveFrame(wxTopLevelWindow& window, const wxPoint& corner);

/// Calls `act` each time a window that was shown has come onto the screen and has its frame, for as
/// long as the window lives; not when the desktop only brings it back. Call once for each window.
void OnEachShowing(wxTopLevelWindow& window, const std::function<void()>& act);

}  // namespace brelex
