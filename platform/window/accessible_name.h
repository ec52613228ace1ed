// SPDX-License-Identifier: MIT
#pragma once

#include <wx/string.h>
#include <wx/window.h>

class wxMenuItem;

namespace brelex {

/// Sets the name that a screen reader says for a window.
void SetSpokenName(wxWindow& window, const wxString& spokenName);

/// Sets what a screen reader says about a window after its name. If the window has the focus, it is
/// said at once.
void SetSpokenDescription(wxWindow& window, const wxString& description);

/// Has a screen reader say the name or text of a window now, although it does not have the focus.
/// Does nothing on Linux, where readers only listen to what has the focus: give that the
/// description.
void Announce(wxWindow& window);

/// Sets the name that a screen reader says for an item of a menu. Does nothing on Windows.
void SetSpokenName(wxMenuItem& item, const wxString& spokenName);

/// Has screen readers leave a window out, because another one has a name that says it all.
void LeaveUnspoken(wxWindow& window);

/// Sets the name by which tests find a new control, and returns the control. A control that shows
/// no text of its own also gets the name that a screen reader says.
template <typename Control>
Control* Named(Control* control, const wxString& name, const wxString& spokenName = {}) {
    control->SetName(name);
    if (!spokenName.empty()) {
        SetSpokenName(*control, spokenName);
    }
    return control;
}

}  // namespace brelex
