// SPDX-License-Identifier: MIT
#pragma once

#include <wx/string.h>
#include <wx/window.h>

namespace brelex {

/// Gives a window the name that a screen reader says.
void SetSpokenName(wxWindow& window, const wxString& spokenName);

/// Gives a new control the name by which tests find it, and returns it. A control that shows no
/// text of its own also takes the name that a screen reader says.
template <typename Control>
Control* Named(Control* control, const wxString& name, const wxString& spokenName = {}) {
    control->SetName(name);
    if (!spokenName.empty()) {
        SetSpokenName(*control, spokenName);
    }
    return control;
}

/// The same for a control that has been made elsewhere.
inline void SetNames(wxWindow& window, const wxString& name, const wxString& spokenName) {
    Named(&window, name, spokenName);
}

}  // namespace brelex
