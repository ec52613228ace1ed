// SPDX-License-Identifier: MIT
#include "platform/window/accessible_name.h"

#include <wx/access.h>

namespace brelex {

namespace {

// The system's own description of a window, with a different name.
class NamedAccessible final : public wxAccessible {
  public:
    NamedAccessible(wxWindow* window, const wxString& name) : wxAccessible(window), name_(name) {}

    wxAccStatus GetName(int childId, wxString* name) override {
        if (childId != wxACC_SELF) {
            return wxACC_NOT_IMPLEMENTED;
        }
        *name = name_;
        return wxACC_OK;
    }

  private:
    wxString name_;
};

}  // namespace

void SetSpokenName(wxWindow& window, const wxString& spokenName) {
    window.SetAccessible(new NamedAccessible(&window, spokenName));
}

}  // namespace brelex
