// SPDX-License-Identifier: MIT
#pragma once

#include <wx/string.h>

class wxWindow;

namespace brelex {

/// Gives a window the name by which tests find it and the one that a screen reader says.
void SetNames(wxWindow& window, const wxString& name, const wxString& spokenName);

}  // namespace brelex
