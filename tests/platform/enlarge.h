// SPDX-License-Identifier: MIT
#pragma once

class wxSize;
class wxTopLevelWindow;

namespace brelex {

/// Makes a window larger by so many pixels, or smaller, as its user would: within its limits, and
/// not at all if it has a fixed size. With the mouse on Linux. Where Wine shares the screen with a
/// window manager, simulated clicks do not reach the frames, so there it is the system that does
/// it.
void EnlargeAsUser(wxTopLevelWindow& window, const wxSize& by);

}  // namespace brelex
