// SPDX-License-Identifier: MIT
#include "ui/controls/hover_hints.h"

#include <algorithm>

#include <wx/stattext.h>
#include <wx/utils.h>
#include <wx/window.h>

namespace brelex {

void HoverHints::Watch(const std::vector<wxString>& others) {
    FitFont(others);
    WatchAll(surface_);
}

void HoverHints::FitFont(const std::vector<wxString>& others) {
    int widest = 1;
    for (const wxString& text : others) {
        widest = std::max(widest, label_.GetTextExtent(text).x);
    }
    for (const ControlHint& hint : hints_) {
        widest = std::max(widest, label_.GetTextExtent(hint.text).x);
    }
    const int room = label_.GetSize().x;
    if (widest > room) {
        constexpr double kMargin = 0.97;  // hinting makes some sizes wider
        wxFont font = label_.GetFont();
        constexpr double kLeastPoints = 6;  // smaller text is unreadable, so it is cut off
        font.SetFractionalPointSize(
            std::max(font.GetFractionalPointSize() * kMargin * room / widest, kLeastPoints));
        label_.SetFont(font);
    }
}

// Some controls have no window of their own on some systems, so their mouse events go to the window
// under them. Therefore this watches all windows, and the position of the mouse decides.
void HoverHints::WatchAll(wxWindow& window) {
    window.Bind(wxEVT_MOTION, &HoverHints::OnMotion, this);
    for (wxWindow* child : window.GetChildren()) {
        WatchAll(*child);
    }
}

void HoverHints::OnMotion(wxMouseEvent& event) {
    event.Skip();
    const wxPoint mouse = wxGetMousePosition();
    const auto found = std::find_if(hints_.begin(), hints_.end(), [&](const ControlHint& hint) {
        return hint.control.GetScreenRect().Contains(mouse);
    });
    const auto& controls = surface_.GetChildren();
    const bool onSurface = std::none_of(
        controls.begin(), controls.end(),
        [&](const wxWindow* control) { return control->GetScreenRect().Contains(mouse); });
    if (found == hints_.end() && !onSurface) {
        return;  // a control without a hint, for example the hint itself
    }
    const wxString text = found == hints_.end() ? wxString() : found->text;
    if (label_.GetLabelText() != text) {
        label_.SetLabelText(text);
    }
}

}  // namespace brelex
