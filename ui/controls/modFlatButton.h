// SPDX-License-Identifier: MIT
#pragma once

#include "presentation/toolbar_state.h"

class wxDC;

namespace brelex {

/// Draws the edge of a flat button on its own boundary, in the system's colors: a flat one in the
/// color of buttons, which erases it; a raised one light from the left and above; a sunken one
/// light from the right and below.
void DrawFlatButton(const IconBounds& icon, wxDC& toolbar, Edge edge);

}  // namespace brelex
