// SPDX-License-Identifier: MIT
#include "ui/controls/modFlatButton.h"

#include <wx/dc.h>
#include <wx/settings.h>

#include "ui/controls/colours.h"

namespace brelex {

namespace {

struct ButtonEdges {
    wxColour leftAndTop;
    wxColour rightAndBottom;
};

ButtonEdges ColoursOf(Edge edge) {
    const SystemEdges edges = EdgesOnFace();
    switch (edge) {
        case Edge::Raised:
            return {edges.light, edges.shadow};
        case Edge::Sunken:
            return {edges.shadow, edges.light};
        case Edge::Flat:
            break;
    }
    const wxColour face = wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE);
    return {face, face};
}

}  // namespace

void DrawFlatButton(const IconBounds& icon, wxDC& toolbar, Edge edge) {
    const ButtonEdges colours = ColoursOf(edge);
    const EdgeRectangle lines = EdgeRectangleOf(icon);
    toolbar.SetPen(wxPen(colours.leftAndTop));
    toolbar.DrawLine(lines.left, lines.top, lines.left, lines.bottom);
    toolbar.DrawLine(lines.left, lines.top, lines.right, lines.top);
    toolbar.SetPen(wxPen(colours.rightAndBottom));
    toolbar.DrawLine(lines.right, lines.bottom, lines.right, lines.top);
    toolbar.DrawLine(lines.right, lines.bottom, lines.left, lines.bottom);
}

}  // namespace brelex
