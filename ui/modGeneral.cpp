// SPDX-License-Identifier: MIT
#include "ui/modGeneral.h"

#include <wx/accel.h>
#include <wx/dc.h>
#include <wx/gdicmn.h>
#include <wx/settings.h>
#include <wx/stattext.h>
#include <wx/toplevel.h>

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

void LeadAccessKeyTo(wxTopLevelWindow& window, const wxStaticText& label, wxWindow& target) {
    const int ampersand = label.GetLabel().Find('&');
    if (ampersand == wxNOT_FOUND) {
        return;
    }
    const wxUniChar key = wxToupper(label.GetLabel()[static_cast<std::size_t>(ampersand) + 1]);
    wxAcceleratorEntry entry(wxACCEL_ALT, static_cast<int>(key.GetValue()),
                             wxWindow::NewControlId());
    window.SetAcceleratorTable(wxAcceleratorTable(1, &entry));
    window.Bind(
        wxEVT_MENU, [&target](wxCommandEvent&) { target.SetFocus(); }, entry.GetCommand());
}

}  // namespace brelex
