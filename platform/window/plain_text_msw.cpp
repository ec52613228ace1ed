// SPDX-License-Identifier: MIT
#include "platform/window/plain_text.h"

#include <wx/stattext.h>

namespace brelex {

// A control that shows a text, or has a spoken name, takes none from a text before it.
wxStaticText* NewPlainText(wxWindow* parent, const wxString& text, long style) {
    return new wxStaticText(parent, wxID_ANY, text, wxDefaultPosition, wxDefaultSize, style);
}

}  // namespace brelex
