// SPDX-License-Identifier: MIT
#pragma once

#include <set>

#include <wx/image.h>

#include "tests/platform/screen.h"

class wxTextCtrl;

namespace brelex {

/// The share of pixels, from 0 to 1, that are the same in two pictures; 0 if the sizes differ.
[[nodiscard]] double Likeness(const wxImage& one, const wxImage& other);

/// Whether the desktop has received the program's own icon for a window.
[[nodiscard]] bool ShowsTheProgramsIcon(SystemWindow window);

/// The number of pixel rows between the upper edge of a box and its first text.
[[nodiscard]] int RowsAboveText(const wxWindow& box);

/// The distances in pixels at which the meanings of the smileys begin, from the left edge of a box
/// that shows the dictionary.
[[nodiscard]] std::set<int> ColumnsOfMeanings(const wxTextCtrl& box);

/// How many pixels in an area of a picture are not of its background.
[[nodiscard]] int InkIn(const wxImage& image, const wxColour& background, const wxRect& area);

}  // namespace brelex
