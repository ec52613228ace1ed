// SPDX-License-Identifier: MIT
#pragma once

#include <wx/gdicmn.h>
#include <wx/string.h>

class wxWindow;

namespace brelex {

/// Gives an area of a window a tooltip. It appears at that area and disappears when the mouse
/// leaves it. It replaces the window's previous tooltip. An empty text means none.
void SetAreaToolTip(wxWindow& window, const wxRect& area, const wxString& text);

}  // namespace brelex
