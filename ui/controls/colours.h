// SPDX-License-Identifier: MIT
#pragma once

#include <wx/colour.h>
#include <wx/settings.h>

#include "presentation/contrast.h"

namespace brelex {

/// The edges of frames and buttons in the system's colors, or in similar ones where a theme's own
/// would not be seen.
struct SystemEdges {
    wxColour light;
    wxColour shadow;
};

/// The edges as they are seen on the color of buttons.
[[nodiscard]] SystemEdges EdgesOnFace();

[[nodiscard]] Rgb RgbOf(const wxColour& colour);
[[nodiscard]] Rgb RgbOf(wxSystemColour colour);
[[nodiscard]] wxColour WxColourOf(Rgb colour);

// The colors in which results are shown on the background of a control.
[[nodiscard]] wxColour RedOn(const wxColour& ground);
[[nodiscard]] wxColour DarkRedOn(const wxColour& ground);
[[nodiscard]] wxColour BlueOn(const wxColour& ground);

}  // namespace brelex
