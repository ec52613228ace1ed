// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace brelex {

/// A color in sRGB. Each part is 0 to 255.
struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Rgb&, const Rgb&) = default;
};

/// The contrast at which a line is seen beside the area that it is drawn on.
inline constexpr double kLineContrast = 1.3;

/// The contrast of lines in themes with high contrast (WCAG 2.1, success criterion 1.4.11).
inline constexpr double kStrongLineContrast = 3;

/// The contrast that text needs (WCAG 2.1, success criterion 1.4.3).
inline constexpr double kTextContrast = 4.5;

/// The contrast ratio of two colors, from 1 (the same luminance) to 21 (black on white), as
/// WCAG 2.1 defines it.
[[nodiscard]] double ContrastRatio(Rgb one, Rgb other);

/// True if light text is read better on this color than dark text.
[[nodiscard]] bool IsDark(Rgb ground);

/// Mixes two colors. A `share` of 0 gives the first one, 1 the second one.
[[nodiscard]] Rgb Mix(Rgb from, Rgb towards, double share);

/// The colors of the edges of frames and buttons.
struct EdgeColours {
    Rgb light;
    Rgb shadow;

    friend bool operator==(const EdgeColours&, const EdgeColours&) = default;
};

/// The system's pair, if both are seen on `face` and told apart. A theme may give colors that are
/// not. Then the light one is mixed with white or, where not even white is seen, with the shadow,
/// and the shadow with black, as little as necessary. Where the shadow has kStrongLineContrast, as
/// in themes with high contrast, a light one that is not seen gets it, too.
[[nodiscard]] EdgeColours VisibleEdges(Rgb face, EdgeColours system);

/// A color for text on `ground`. On a light ground it is the color itself, which was chosen for it.
/// On a dark one it is mixed with white until it can be read.
[[nodiscard]] Rgb ReadableOn(Rgb ground, Rgb colour);

/// The color that a button has while the mouse is over it or, more so, while it is pressed.
[[nodiscard]] Rgb HotFace(Rgb face, Rgb text, bool isPressed);

}  // namespace brelex
