// SPDX-License-Identifier: MIT
#pragma once

#include <wx/string.h>

class wxStaticText;
class wxWindow;

namespace brelex {

/// Creates a text that is no label: a screen reader does not take it for the name of the control
/// that is created after it. `style` is that of wxStaticText.
[[nodiscard]] wxStaticText* NewPlainText(wxWindow* parent, const wxString& text = {},
                                         long style = 0);

}  // namespace brelex
