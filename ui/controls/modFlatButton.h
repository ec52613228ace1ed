// SPDX-License-Identifier: MIT
#pragma once

#include "presentation/toolbar_state.h"

class wxDC;

namespace brelex {

/// Draws the edge of a flat button on its own boundary, in the system's colors or, where a theme's
/// own would not be seen, in similar ones. A flat edge has the color of buttons, which erases an
/// earlier edge. A raised edge is light on the left and top, a sunken edge on the right and bottom.
void DrawFlatButton(const IconBounds& icon, wxDC& toolbar, Edge edge);

}  // namespace brelex
