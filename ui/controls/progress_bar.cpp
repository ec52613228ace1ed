// SPDX-License-Identifier: MIT
#include "ui/controls/progress_bar.h"

#include <algorithm>
#include <string>

#include <wx/dcbuffer.h>
#include <wx/math.h>

#include "platform/window/spoken_object.h"
#include "ui/controls/colours.h"

namespace brelex {

ProgressBar::ProgressBar(wxWindow* parent) : Backdrop(parent) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Bind(wxEVT_PAINT, &ProgressBar::OnPaint, this);
    Describe();
}

void ProgressBar::SetPercent(int percent) {
    percent_ = percent;
    Describe();
    Refresh();
    Update();  // the busy code lets events run only now and then
}

void ProgressBar::Clear() {
    percent_ = -1;
    Describe();
    Refresh();
}

void ProgressBar::Describe() {
    SetSpokenObject(
        *this,
        {.role = SpokenRole::ProgressBar, .name = "Progress", .percent = std::max(percent_, 0)});
}

void ProgressBar::OnPaint(wxPaintEvent& /*event*/) {
    wxAutoBufferedPaintDC dc(this);
    Draw(dc);
}

void ProgressBar::Draw(wxDC& dc) const {
    dc.SetBackground(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    dc.Clear();
    if (percent_ < 0) {
        return;
    }
    const wxSize size = GetClientSize();
    const int right = wxRound(size.x / 100.0 * percent_ - 1);
    const int bottom = size.y - 1;
    DrawText(dc, wxSYS_COLOUR_WINDOWTEXT);
    if (right > 0) {
        const wxDCClipper bar(dc, 0, 0, right + 1, size.y);
        dc.SetPen(*wxTRANSPARENT_PEN);
        dc.SetBrush(wxBrush(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT)));
        dc.DrawRectangle(0, 0, right + 1, size.y);
        DrawText(dc, wxSYS_COLOUR_HIGHLIGHTTEXT);
        const SystemEdges edges = EdgesOnFace();
        dc.SetPen(wxPen(edges.light));
        dc.DrawLine(0, 0, 0, bottom);
        dc.DrawLine(0, 0, right, 0);
        dc.SetPen(wxPen(edges.shadow));
        dc.DrawLine(right, bottom, right, 0);
        dc.DrawLine(right, bottom, 0, bottom);
    }
}

void ProgressBar::DrawText(wxDC& dc, wxSystemColour colour) const {
    const wxString text = std::to_string(percent_) + "%";
    dc.SetFont(GetFont());
    const wxSize size = GetClientSize();
    const wxSize extent = dc.GetTextExtent(text);
    dc.SetTextForeground(wxSystemSettings::GetColour(colour));
    dc.DrawText(text, (size.x - extent.x) / 2, (size.y - extent.y) / 2);
}

}  // namespace brelex
