// SPDX-License-Identifier: MIT
#include "ui/controls/painted.h"

#include <wx/dcclient.h>
#include <wx/settings.h>

namespace brelex {

PaintedText::PaintedText(wxWindow* parent) : Backdrop(parent) {
    SetDoubleBuffered(true);
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) {
        wxPaintDC dc(this);
        Draw(dc);
    });
}

void PaintedText::Draw(wxDC& dc) const {
    dc.SetFont(GetFont());
    dc.SetTextForeground(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNTEXT));
    dc.DrawText(text_, 0, 0);
}

void PaintedText::SetText(const wxString& text) {
    text_ = text;
    Refresh();
}

}  // namespace brelex
