// SPDX-License-Identifier: MIT
#pragma once

class wxDC;
class wxRect;
class wxStaticText;
class wxTopLevelWindow;
class wxWindow;

namespace brelex {

/// Draws a sunken 3-D frame on the boundary of `area`: the left and top edges in the system's
/// button-shadow colour, then the right and bottom edges, which stand at left + width and
/// top + height, in its button-highlight colour.
void Draw3DFrame(wxDC& dc, const wxRect& area);

/// Has the access key in the text of `label` lead to `target`. On GTK the label does so by itself;
/// Windows promises it for dialogs only. Call once for each window.
void LeadAccessKeyTo(wxTopLevelWindow& window, const wxStaticText& label, wxWindow& target);

}  // namespace brelex
