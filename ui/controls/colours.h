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

// The colors in which results are shown. `ground` is the system's color behind the text.
[[nodiscard]] wxColour RedOn(wxSystemColour ground);
[[nodiscard]] wxColour DarkRedOn(wxSystemColour ground);
[[nodiscard]] wxColour BlueOn(wxSystemColour ground);

}  // namespace brelex
