// SPDX-License-Identifier: MIT
#pragma once

class wxDC;
class wxRect;

namespace brelex {

/// Draws a sunken 3-D frame on the boundary of `area`: the left and top edges in the system's
/// button-shadow colour, then the right and bottom edges, which stand at left + width and
/// top + height, in its button-highlight colour.
void Draw3DFrame(wxDC& dc, const wxRect& area);

}  // namespace brelex
