// SPDX-License-Identifier: MIT
#pragma once

#include <wx/bmpbndl.h>
#include <wx/iconbndl.h>

namespace brelex {

/// The program's icon, drawn sharply at any size.
[[nodiscard]] wxBitmapBundle AppIcon(int size);

/// The icon in the sizes that window managers and notification areas ask for.
[[nodiscard]] wxIconBundle AppIcons();

}  // namespace brelex
