// SPDX-License-Identifier: MIT
#include "ui/modGeneral.h"

#include <wx/accel.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/dc.h>
#include <wx/gdicmn.h>
#include <wx/settings.h>
#include <wx/stattext.h>
#include <wx/toplevel.h>

#include "database/record_text.h"
#include "ui/wx_text.h"

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

void SetTopMost(wxTopLevelWindow& window, bool topMost) {
    const long style = window.GetWindowStyleFlag();
    window.SetWindowStyleFlag(topMost ? style | wxSTAY_ON_TOP : style & ~wxSTAY_ON_TOP);
}

void CopyEntryToClipboard(std::string_view recordText) {
    const wxClipboardLocker clipboard;
    if (!clipboard) {
        return;
    }
    wxTheClipboard->SetData(new wxTextDataObject(WxTextOfBytes(GetAbbreviation(recordText)) +
                                                 " = " + WxTextOfBytes(GetExpansion(recordText))));
    wxTheClipboard->Flush();  // or else it would go with the program
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
