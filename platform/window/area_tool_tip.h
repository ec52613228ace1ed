// SPDX-License-Identifier: MIT
#pragma once

#include <wx/gdicmn.h>
#include <wx/string.h>

class wxWindow;

namespace brelex {

/// Gives one part of a window a tool tip, which appears at that part and goes when the mouse leaves
/// it. It replaces the window's last tool tip. An empty text means none.
void SetAreaToolTip(wxWindow& window, const wxRect& area, const wxString& text);

}  // namespace brelex
