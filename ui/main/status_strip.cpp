// SPDX-License-Identifier: MIT
#include "ui/main/status_strip.h"

#include <algorithm>
#include <cstddef>

#include <wx/stattext.h>

#include "base/number_text.h"
#include "platform/window/accessible_name.h"
#include "presentation/toolbar_state.h"
#include "toolkit/wx_text.h"
#include "ui/controls/surface.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kFrameHeight = 18;
constexpr double kBelow = 2;
constexpr double kGap = 3;
constexpr double kHintWidth = 450;
constexpr double kLeastHintWidth = 8;

}  // namespace

StatusStrip::StatusStrip(Surface& surface, const LayoutUnits& units)
    : surface_(surface),
      units_(units),
      lblRecNumber(AddLabel("lblRecNumber")),
      lblDescription(AddLabel("lblDescription")),
      lblRecCount(AddLabel("lblRecCount")),
      hints_(surface, *lblDescription) {}

wxStaticText* StatusStrip::AddLabel(const char* name) {
    auto* const label =
        Named(new wxStaticText(&surface_, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                               wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END),
              name);
    label->SetFont(units_.StripFont());
    return label;
}

int StatusStrip::Height() const {
    return units_.Pixels(kFrameHeight + kBelow);
}

void StatusStrip::LayoutStatusBar(const wxSize& inner, int numberWidth,
                                  const ProgramValues& values) {
    const auto px = [this](double units) { return units_.Pixels(units); };
    const int height = px(kFrameHeight);
    const int top = inner.y - height - px(kBelow);
    int x = px(1);
    const auto place = [&](wxStaticText& label, int width) {
        surface_.FrameArea({x, top, width, height});
        label.SetSize(x + px(3), top + px(2), width - px(6), height - px(3));
        x += width + px(kGap);
    };
    place(*lblRecNumber, numberWidth);
    const wxString count =
        WxText(FormatGrouped(values.RecordCount, values.groupSeparator) + " entries");
    // If the screen is too small for everything, the number of entries has priority.
    const int countWidth = lblRecCount->GetTextExtent(count).x + px(12);
    place(*lblDescription, std::max(std::min(px(kHintWidth), inner.x - x - px(5) - countWidth),
                                    px(kLeastHintWidth)));
    place(*lblRecCount, inner.x - x - px(2));
    lblRecCount->SetLabelText(count);
}

void StatusStrip::WatchHints(const std::vector<ControlHint>& hints) {
    for (const ControlHint& hint : hints) {
        hints_.Add(hint);
    }
    hints_.Add(
        {*lblRecCount, "Number of entries in the database (double-click to view Database Info)"});
    hints_.Add({*lblRecNumber, "Current record number (double-click to go to specified record)"});
    std::vector<wxString> ofToolbar;
    ofToolbar.reserve(kToolbarIcons.size());
    for (const ToolbarIcon& icon : kToolbarIcons) {
        ofToolbar.emplace_back(icon.description);
    }
    hints_.Watch(ofToolbar);
}

void StatusStrip::ShowNumber(const wxString& text) {
    lblRecNumber->SetLabelText(text);
    SetSpokenName(*lblRecNumber, "Record number " + text);
}

void StatusStrip::ShowHint(const wxString& text) {
    lblDescription->SetLabelText(text);
}

void StatusStrip::ShowHintOfIcon(int icon) {
    lblDescription->SetLabelText(
        icon < 0 ? "" : kToolbarIcons.at(static_cast<std::size_t>(icon)).description);
}

wxWindow& StatusStrip::NumberWindow() const {
    return *lblRecNumber;
}

wxWindow& StatusStrip::CountWindow() const {
    return *lblRecCount;
}

}  // namespace brelex
