// SPDX-License-Identifier: MIT
#include "ui/controls/modFlatButton.h"

#include <wx/dc.h>
#include <wx/settings.h>

namespace brelex {

void DrawFlatButton(const IconBounds& icon, wxDC& toolbar, int state) {
    wxSystemColour leftAndTop = wxSYS_COLOUR_BTNFACE;
    wxSystemColour rightAndBottom = wxSYS_COLOUR_BTNFACE;
    switch (state) {
        case kFlat:
            break;
        case kRaised:
            leftAndTop = wxSYS_COLOUR_BTNHIGHLIGHT;
            rightAndBottom = wxSYS_COLOUR_BTNSHADOW;
            break;
        case kSunken:
            leftAndTop = wxSYS_COLOUR_BTNSHADOW;
            rightAndBottom = wxSYS_COLOUR_BTNHIGHLIGHT;
            break;
        default:
            return;
    }
    const EdgeRectangle edge = EdgeOf(icon);
    toolbar.SetPen(wxPen(wxSystemSettings::GetColour(leftAndTop)));
    toolbar.DrawLine(edge.left, edge.top, edge.left, edge.bottom);
    toolbar.DrawLine(edge.left, edge.top, edge.right, edge.top);
    toolbar.SetPen(wxPen(wxSystemSettings::GetColour(rightAndBottom)));
    toolbar.DrawLine(edge.right, edge.bottom, edge.right, edge.top);
    toolbar.DrawLine(edge.right, edge.bottom, edge.left, edge.bottom);
}

}  // namespace brelex
