// SPDX-License-Identifier: MIT
#pragma once

#include "ui/controls/modGeneral.h"

namespace brelex {

// For the windows that are not yet a SideWindow.

/// Draws a sunken frame around a control: one pixel outside it, or `above` pixels at the top.
/// `area` is the control's area.
void DrawFrameRound(wxDC& dc, const wxRect& area, int above = 1);

/// Centers a window over the main window, now and whenever it appears on the screen.
void KeepCentered(wxTopLevelWindow& window, const wxTopLevelWindow& main);

/// Makes a read-only text box show what program this is where other boxes show a menu.
void ShowAppInfoOnMenuRequest(wxTextCtrl& box, const AppInfo& info);

}  // namespace brelex
