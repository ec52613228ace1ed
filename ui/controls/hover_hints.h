// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <wx/string.h>

class wxMouseEvent;
class wxStaticText;
class wxWindow;

namespace brelex {

/// Shows in a label what the control under the mouse is for.
class HoverHints {
  public:
    /// All are windows on `surface`, whose bare parts have no hint. Call Watch when all controls
    /// are there.
    HoverHints(wxWindow& surface, wxStaticText& label) : surface_(surface), label_(label) {}

    HoverHints(const HoverHints&) = delete;
    HoverHints& operator=(const HoverHints&) = delete;

    void Add(const wxWindow& control, const wxString& hint) { hints_.push_back({control, hint}); }

    /// Begins to follow the mouse. The label's font becomes smaller as far as the longest hint, or
    /// a text among `others` that is shown there too, needs it.
    void Watch(const std::vector<wxString>& others);

  private:
    struct Hint {
        const wxWindow& control;
        wxString text;
    };

    void FitFont(const std::vector<wxString>& others);
    void WatchAll(wxWindow& window);
    void OnMotion(wxMouseEvent& event);

    wxWindow& surface_;
    wxStaticText& label_;
    std::vector<Hint> hints_;
};

}  // namespace brelex
