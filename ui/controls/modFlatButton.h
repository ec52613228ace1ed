// SPDX-License-Identifier: MIT
#pragma once

#include "presentation/toolbar_state.h"

class wxDC;

namespace brelex {

/// Draws the edge of a flat button on its own boundary, in the system's colours: kFlat in the
/// colour of the surface, which erases it; kRaised light from the left and above; kSunken light
/// from the right and below. Any other state draws nothing.
void DrawFlatButton(const IconBounds& icon, wxDC& toolbar, int state);

}  // namespace brelex
