// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <wx/string.h>

class wxMouseEvent;
class wxStaticText;
class wxWindow;

namespace brelex {

/// A control and its hint.
struct ControlHint {
    const wxWindow& control;
    wxString text;
};

/// Shows a hint in a label for the control under the mouse.
class HoverHints {
  public:
    /// All controls are on `surface`, whose empty areas have no hint. Call Watch once all controls
    /// exist.
    HoverHints(wxWindow& surface, wxStaticText& label) : surface_(surface), label_(label) {}

    HoverHints(const HoverHints&) = delete;
    HoverHints& operator=(const HoverHints&) = delete;

    void Add(const ControlHint& hint) { hints_.push_back(hint); }

    /// Starts following the mouse. Shrinks the label's font as far as needed for the longest hint,
    /// and for the longest of `others`, texts that also appear in the label.
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
