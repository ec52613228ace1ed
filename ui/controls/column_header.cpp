// SPDX-License-Identifier: MIT
#include "ui/controls/column_header.h"

#include <array>

#include <wx/dcbuffer.h>
#include <wx/dcgraph.h>
#include <wx/settings.h>

#include "platform/window/spoken_object.h"
#include "ui/controls/colours.h"

namespace brelex {

namespace {

// In layout units, from the left or top edge of the header.
constexpr double kAbbreviationAt = 7;
constexpr double kLineAt = 15;
constexpr double kSunkenLineBefore = 9;  // the second column
constexpr double kArrowAt = 95;
constexpr double kArrowWidth = 8;
constexpr double kArrowHeight = 4;

}  // namespace

ColumnHeader::ColumnHeader(wxWindow* parent, const LayoutUnits& units)
    : Backdrop(parent),
      units_(units) {
    SetName("picColHeader");
    SetSpokenObject(*this, {.role = SpokenRole::Text, .name = "Abbreviation, Expansion"});
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Bind(wxEVT_PAINT, &ColumnHeader::OnPaint, this);
}

void ColumnHeader::SetSecondColumn(int pixels) {
    secondColumn_ = pixels;
    Refresh();
}

void ColumnHeader::OnPaint(wxPaintEvent& /*event*/) {
    wxAutoBufferedPaintDC dc(this);
    dc.SetBackground(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    dc.Clear();
    const wxSize size = GetClientSize();
    const int line = units_.Pixels(kLineAt);
    const int secondColumn = secondColumn_.value_or(units_.Pixels(kExpansionTextAt));
    const SystemEdges edges = EdgesOnFace();
    const wxColour text = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT);

    dc.SetFont(units_.StripFont());
    dc.SetTextForeground(text);
    const int textTop = (line - dc.GetCharHeight()) / 2;
    dc.DrawText("Abbreviation", units_.Pixels(kAbbreviationAt), textTop);
    dc.DrawText("E x p a n s i o n", secondColumn, textTop);

    dc.SetPen(wxPen(edges.shadow));
    dc.DrawLine(0, line, size.x, line);
    const int divider = secondColumn - units_.Pixels(kSunkenLineBefore);
    dc.DrawLine(divider, units_.Pixels(2), divider, line - units_.Pixels(1));
    dc.SetPen(wxPen(edges.light));
    dc.DrawLine(divider + 1, units_.Pixels(2), divider + 1, line - units_.Pixels(1));

    const int left = units_.Pixels(kArrowAt);
    const int top = (line - units_.Pixels(kArrowHeight)) / 2;
    const std::array<wxPoint, 3> arrow = {
        wxPoint(left, top + units_.Pixels(kArrowHeight)),
        wxPoint(left + units_.Pixels(kArrowWidth), top + units_.Pixels(kArrowHeight)),
        wxPoint(left + units_.Pixels(kArrowWidth / 2), top)};
    // Fainter than the text, but seen in every theme.
    constexpr double kFaint = 0.35;
    const wxColour faint = WxColourOf(Mix(RgbOf(text), RgbOf(wxSYS_COLOUR_BTNFACE), kFaint));
    dc.SetPen(wxPen(faint));
    dc.SetBrush(wxBrush(faint));
    dc.DrawPolygon(static_cast<int>(arrow.size()), arrow.data());
}

}  // namespace brelex
