// SPDX-License-Identifier: MIT
#pragma once

#include <wx/window.h>

namespace brelex {

/// A plain child window used as a background. It never takes the focus.
class Backdrop : public wxWindow {
  public:
    explicit Backdrop(wxWindow* parent) : wxWindow(parent, wxID_ANY) {}

    [[nodiscard]] bool AcceptsFocus() const override { return false; }
};

}  // namespace brelex
