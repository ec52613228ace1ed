// SPDX-License-Identifier: MIT
#pragma once

#include "ui/controls/modGeneral.h"

namespace brelex {

// For the windows that are not yet a SideWindow.

/// Draws a sunken frame round a control, one pixel outside it, or `above` pixels at the top. `area`
/// is the control's.
void DrawFrameRound(wxDC& dc, const wxRect& area, int above = 1);

/// Centers a window over the main window now and whenever it comes onto the screen.
void KeepCentered(wxTopLevelWindow& window, const wxTopLevelWindow& main);

/// Has a read-only text box say what program this is where others show a menu.
void ShowAppInfoOnMenuRequest(wxTextCtrl& box, const AppInfo& info);

}  // namespace brelex
