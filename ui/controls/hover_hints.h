// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <wx/string.h>

class wxMouseEvent;
class wxStaticText;
class wxWindow;

namespace brelex {

/// A control and what it is for.
struct ControlHint {
    const wxWindow& control;
    wxString text;
};

/// Shows in a label what the control under the mouse is for.
class HoverHints {
  public:
    /// All are windows on `surface`, whose bare parts have no hint. Call Watch when all controls
    /// are there.
    HoverHints(wxWindow& surface, wxStaticText& label) : surface_(surface), label_(label) {}

    HoverHints(const HoverHints&) = delete;
    HoverHints& operator=(const HoverHints&) = delete;

    void Add(const ControlHint& hint) { hints_.push_back(hint); }

    /// Begins to follow the mouse. The label's font becomes smaller as far as the longest hint, or
    /// a text among `others` that is shown there too, needs it.
    void Watch(const std::vector<wxString>& others);

  private:
    void FitFont(const std::vector<wxString>& others);
    void WatchAll(wxWindow& window);
    void OnMotion(wxMouseEvent& event);

    wxWindow& surface_;
    wxStaticText& label_;
    std::vector<ControlHint> hints_;
};

}  // namespace brelex
