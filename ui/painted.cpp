// SPDX-License-Identifier: MIT
#include "ui/painted.h"

#include <wx/dcclient.h>
#include <wx/settings.h>

namespace brelex {

PaintedPicture::PaintedPicture(wxWindow* parent, const wxBitmap& picture)
    : Backdrop(parent),
      picture_(picture) {
    SetDoubleBuffered(true);
    SetInitialSize(picture_.GetLogicalSize());
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) {
        wxPaintDC dc(this);
        dc.DrawBitmap(picture_, 0, 0, true);
    });
}

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
