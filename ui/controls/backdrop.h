// SPDX-License-Identifier: MIT
#pragma once

#include <wx/window.h>

namespace brelex {

/// A plain child window used as a background. It never takes the focus.
class Backdrop : public wxWindow {
  public:
    // Without a name, which Windows would tell screen readers.
    explicit Backdrop(wxWindow* parent)
        : wxWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, wxEmptyString) {}

    [[nodiscard]] bool AcceptsFocus() const override { return false; }
};

}  // namespace brelex
