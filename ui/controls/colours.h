// SPDX-License-Identifier: MIT
#pragma once

#include <wx/colour.h>

namespace brelex {

// The colors in which results are shown.

[[nodiscard]] inline wxColour Red() {
    return {255, 0, 0};
}

[[nodiscard]] inline wxColour DarkRed() {
    return {192, 0, 0};
}

[[nodiscard]] inline wxColour Blue() {
    return {0, 0, 255};
}

}  // namespace brelex
