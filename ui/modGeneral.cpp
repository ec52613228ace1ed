// SPDX-License-Identifier: MIT
#include "ui/modGeneral.h"

#include <wx/dc.h>
#include <wx/gdicmn.h>
#include <wx/settings.h>

namespace brelex {

void Draw3DFrame(wxDC& dc, const wxRect& area) {
    const int left = area.x;
    const int top = area.y;
    const int right = area.x + area.width;
    const int bottom = area.y + area.height;
    dc.SetPen(wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW)));
    dc.DrawLine(left, top, left, bottom);
    dc.DrawLine(left, top, right, top);
    dc.SetPen(wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNHIGHLIGHT)));
    dc.DrawLine(right, bottom, right, top);
    dc.DrawLine(left, bottom, right, bottom);
}

}  // namespace brelex
