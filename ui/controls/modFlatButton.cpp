// SPDX-License-Identifier: MIT
#include "ui/controls/modFlatButton.h"

#include <wx/dc.h>
#include <wx/settings.h>

namespace brelex {

namespace {

struct EdgeColours {
    wxSystemColour leftAndTop;
    wxSystemColour rightAndBottom;
};

EdgeColours ColoursOf(Edge edge) {
    switch (edge) {
        case Edge::Raised:
            return {wxSYS_COLOUR_BTNHIGHLIGHT, wxSYS_COLOUR_BTNSHADOW};
        case Edge::Sunken:
            return {wxSYS_COLOUR_BTNSHADOW, wxSYS_COLOUR_BTNHIGHLIGHT};
        case Edge::Flat:
            break;
    }
    return {wxSYS_COLOUR_BTNFACE, wxSYS_COLOUR_BTNFACE};
}

}  // namespace

void DrawFlatButton(const IconBounds& icon, wxDC& toolbar, Edge edge) {
    const EdgeColours colours = ColoursOf(edge);
    const EdgeRectangle lines = EdgeRectangleOf(icon);
    toolbar.SetPen(wxPen(wxSystemSettings::GetColour(colours.leftAndTop)));
    toolbar.DrawLine(lines.left, lines.top, lines.left, lines.bottom);
    toolbar.DrawLine(lines.left, lines.top, lines.right, lines.top);
    toolbar.SetPen(wxPen(wxSystemSettings::GetColour(colours.rightAndBottom)));
    toolbar.DrawLine(lines.right, lines.bottom, lines.right, lines.top);
    toolbar.DrawLine(lines.right, lines.bottom, lines.left, lines.bottom);
}

}  // namespace brelex
