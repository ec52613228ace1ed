// SPDX-License-Identifier: MIT
#pragma once

class wxTextCtrl;

namespace brelex {

/// Keeps the text of a multi-line box `pixels` away from its left and right edges.
void SetSideMargins(wxTextCtrl& box, int pixels);

/// Keeps the first line of a multi-line box `pixels` away from its upper edge.
void SetTopMargin(wxTextCtrl& box, int pixels);

/// The distance in pixels from one line of a multi-line box to the next.
[[nodiscard]] int LineDistance(wxTextCtrl& box);

/// The width in pixels of the frame around a multi-line box, without scroll bars.
[[nodiscard]] int FrameWidth(wxTextCtrl& box);

/// Puts the tab stop of a multi-line box at `dialogUnits`, each a quarter of the average character
/// width. Returns its distance in pixels from the beginning of the text.
int SetTabStop(wxTextCtrl& box, int dialogUnits);

}  // namespace brelex
