// SPDX-License-Identifier: MIT
#include "ui/controls/modGeneral.h"

#include <algorithm>

#include <wx/clipbrd.h>
#include <wx/combobox.h>
#include <wx/dataobj.h>
#include <wx/dc.h>
#include <wx/display.h>
#include <wx/gdicmn.h>
#include <wx/log.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include "base/message_sink.h"
#include "database/record_text.h"
#include "platform/window/window_place.h"
#include "toolkit/wx_text.h"
#include "ui/controls/colours.h"

namespace brelex {

namespace {

bool PutOnClipboard(const wxString& text) {
    const wxLogNull quiet;  // the toolkit would show its own message
    const wxClipboardLocker clipboard;
    if (!clipboard) {
        return false;
    }
    return wxTheClipboard->SetData(new wxTextDataObject(text));
}

// The free part of the screen that the center of an area is on. If the center is beyond all
// screens, because the user has moved the main window mostly out of sight, then of the main
// window's screen.
wxRect ScreenOf(const wxRect& area, const wxTopLevelWindow& main) {
    int display = wxDisplay::GetFromPoint({area.x + area.width / 2, area.y + area.height / 2});
    if (display == wxNOT_FOUND) {
        display = wxDisplay::GetFromWindow(&main);
    }
    return wxDisplay(display == wxNOT_FOUND ? 0U : static_cast<unsigned>(display)).GetClientArea();
}

}  // namespace

void Draw3DFrame(wxDC& dc, const wxRect& area) {
    const int left = area.x;
    const int top = area.y;
    const int right = area.x + area.width;
    const int bottom = area.y + area.height;
    const SystemEdges edges = EdgesOnFace();
    dc.SetPen(wxPen(edges.shadow));
    dc.DrawLine(left, top, left, bottom);
    dc.DrawLine(left, top, right, top);
    dc.SetPen(wxPen(edges.light));
    dc.DrawLine(right, bottom, right, top);
    dc.DrawLine(left, bottom, right, bottom);
}

void SetTopMost(wxTopLevelWindow& window, bool topMost) {
    const long style = window.GetWindowStyleFlag();
    // Set anew even if the style is already there: where hiding takes a window out of the band, the
    // toolkit does not notice (GTK on X11).
    window.SetWindowStyleFlag(style & ~wxSTAY_ON_TOP);
    if (topMost) {
        window.SetWindowStyleFlag(style | wxSTAY_ON_TOP);
    }
}

void CopyEntryToClipboard(std::string_view recordText, MessageSink& messages) {
    constexpr int kAttempts = 10;
    constexpr int kPauseMs = 20;
    const wxString text = WxTextOfBytes(CopiedText(recordText));
    // Another program that has the clipboard open usually releases it soon.
    bool done = PutOnClipboard(text);
    for (int i = 1; i < kAttempts && !done; ++i) {
        wxMilliSleep(kPauseMs);
        done = PutOnClipboard(text);
    }
    if (!done) {
        messages.Show(
            {"The entry could not be copied: another program is using the clipboard. Try again.",
             kAppTitle, MessageIcon::Exclamation, MessageButtons::Ok});
    }
}

void AddToComboHistory(wxComboBox& combo) {
    const wxString text = combo.GetValue();
    for (unsigned i = combo.GetCount(); i > 0; --i) {
        if (combo.GetString(i - 1) == text) {
            combo.Delete(i - 1);
        }
    }
    combo.Insert(text, 0);
    combo.ChangeValue(text);  // deleting the item may have emptied the box
}

void SelectAllText(wxTextEntry& control) {
    control.SelectAll();
}

void CenterWindow(wxTopLevelWindow& window, const wxTopLevelWindow& main) {
    const bool onScreen = main.IsIconized() || !main.IsShown();
    const wxRect area = onScreen ? wxRect(wxGetDisplaySize()) : FrameOf(main);
    const wxSize size = FrameSizeOf(window);
    wxRect place(area.x + (area.width - size.x) / 2, area.y + (area.height - size.y) / 2, size.x,
                 size.y);
    // If the window would reach beyond the screen, its title and upper left corner stay visible.
    const wxRect screen = ScreenOf(area, main);
    place.x = std::max(std::min(place.x, screen.GetRight() + 1 - size.x), screen.x);
    place.y = std::max(std::min(place.y, screen.GetBottom() + 1 - size.y), screen.y);
    MoveFrame(window, place.GetTopLeft());
}

void ShowAppInfo(wxTextCtrl& box, const AppInfo& info, MessageSink& messages) {
    // Without a selection, the box would only scroll to the caret.
    if (box.HasSelection()) {
        const long caret = box.GetInsertionPoint();
        box.SetSelection(caret, caret);
    }
    messages.Show({std::string(kAppTitle) + " version " + std::to_string(info.majorVersion) + "." +
                       std::to_string(info.minorVersion) + "\n\n" + info.copyright + "\n" +
                       info.supportAddress,
                   kAppTitle, MessageIcon::Information, MessageButtons::Ok});
}

}  // namespace brelex
