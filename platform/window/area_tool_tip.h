// SPDX-License-Identifier: MIT
#pragma once

#include <wx/gdicmn.h>
#include <wx/string.h>

class wxWindow;

namespace brelex {

/// Gives one part of a window a tool tip, which stands at that part and goes when the mouse leaves
/// it. An empty text is none. A new one takes the place of the one before.
void SetAreaToolTip(wxWindow& window, const wxRect& area, const wxString& text);

}  // namespace brelex
