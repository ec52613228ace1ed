// SPDX-License-Identifier: MIT
#pragma once

#include <set>

#include <wx/image.h>

#include "tests/platform/system_window.h"

class wxTextCtrl;

namespace brelex {

/// The share of pixels, 0 to 1, that two pictures have in common; 0 if they differ in size.
[[nodiscard]] double Likeness(const wxImage& one, const wxImage& other);

/// Whether the desktop is given the program's own icon for a window.
[[nodiscard]] bool ShowsTheProgramsIcon(SystemWindow window);

/// Rows of pixels between the upper edge of a box and the first of its text.
[[nodiscard]] int RowsAboveText(const wxWindow& box);

/// Where the meanings of the smileys begin in a box that shows the dictionary: the distances from
/// its left edge, in pixels, that occur.
[[nodiscard]] std::set<int> ColumnsOfMeanings(const wxTextCtrl& box);

}  // namespace brelex
