// SPDX-License-Identifier: MIT
#include "ui/modGeneral.h"

#include <algorithm>

#include <wx/accel.h>
#include <wx/clipbrd.h>
#include <wx/combobox.h>
#include <wx/dataobj.h>
#include <wx/dc.h>
#include <wx/display.h>
#include <wx/gdicmn.h>
#include <wx/log.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>
#include <wx/utils.h>

#include "database/record_text.h"
#include "platform/window_place.h"
#include "ui/surface.h"
#include "ui/wx_message_sink.h"
#include "ui/wx_text.h"

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

}  // namespace

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

void DrawFrameRound(wxDC& dc, const wxRect& area, int above) {
    Draw3DFrame(dc, {area.x - 1, area.y - above, area.width + 1, area.height + above});
}

void SetTopMost(wxTopLevelWindow& window, bool topMost) {
    const long style = window.GetWindowStyleFlag();
    // Afresh also if it should be there: where hiding takes a window out of the band the toolkit
    // takes no notice of it (GTK on X11).
    window.SetWindowStyleFlag(style & ~wxSTAY_ON_TOP);
    if (topMost) {
        window.SetWindowStyleFlag(style | wxSTAY_ON_TOP);
    }
}

void CopyEntryToClipboard(wxWindow& owner, std::string_view recordText) {
    constexpr int kAttempts = 10;
    constexpr int kPauseMs = 20;
    const wxString text = WxTextOfBytes(GetAbbreviation(recordText)) + " = " +
                          WxTextOfBytes(GetExpansion(recordText));
    // Another program that has the clipboard open mostly lets go of it soon.
    bool done = PutOnClipboard(text);
    for (int i = 1; i < kAttempts && !done; ++i) {
        wxMilliSleep(kPauseMs);
        done = PutOnClipboard(text);
    }
    if (!done) {
        WxMessageSink(&owner).Show(
            {"The entry could not be copied: another program is using the "
             "clipboard. Try again.",
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
    combo.ChangeValue(text);  // taking the item away may have emptied the box
}

void SelectAllText(wxTextEntry& control) {
    control.SelectAll();
}

void SelectAllOnCtrlA(wxWindow& window, wxTextEntry& entry) {
    window.Bind(wxEVT_KEY_DOWN, [&entry](wxKeyEvent& event) {
        if (event.GetKeyCode() == 'A' && event.GetModifiers() == wxMOD_CONTROL) {
            SelectAllText(entry);
        } else {
            event.Skip();
        }
    });
}

void TypeInCapitals(wxWindow& window, wxTextEntry& entry) {
    window.Bind(wxEVT_CHAR, [&entry](wxKeyEvent& event) {
        const wxChar typed = event.GetUnicodeKey();
        if (typed >= 'a' && typed <= 'z' && !event.HasModifiers()) {
            entry.WriteText(wxString(static_cast<wxChar>(typed - 'a' + 'A')));
        } else {
            event.Skip();
        }
    });
}

bool PasteWhatFits(wxTextEntry& entry, std::size_t maxLength) {
    wxTextDataObject text;
    {
        const wxClipboardLocker clipboard;
        if (!clipboard || !wxTheClipboard->GetData(text)) {
            return false;
        }
    }
    long from = 0;
    long to = 0;
    entry.GetSelection(&from, &to);
    const std::size_t kept = entry.GetValue().length() - static_cast<std::size_t>(to - from);
    const std::size_t room = maxLength > kept ? maxLength - kept : 0;
    const wxString pasted = text.GetText().BeforeFirst('\n').Left(room);
    if (pasted.empty() && from != to) {
        entry.Remove(from, to);  // GTK tells nothing of a selection overwritten with nothing
    } else {
        entry.WriteText(pasted);
    }
    return true;
}

void FillWindow(Surface& surface, wxSizer* content, int width) {
    surface.SetSizer(content);
    const wxSize size = content->GetMinSize();
    surface.FillWindow({width == 0 ? size.x : width, size.y});
}

void CenterWindow(wxTopLevelWindow& window, const wxTopLevelWindow& main) {
    const bool onScreen = main.IsIconized() || !main.IsShown();
    const wxRect area = onScreen ? wxRect(wxGetDisplaySize()) : FrameOf(main);
    const wxSize size = FrameSizeOf(window);
    wxRect place(area.x + (area.width - size.x) / 2, area.y + (area.height - size.y) / 2, size.x,
                 size.y);
    // Of a window that would reach beyond the screen, title and upper left corner stay on it.
    const int display =
        wxDisplay::GetFromPoint({area.x + area.width / 2, area.y + area.height / 2});
    if (display != wxNOT_FOUND) {
        const wxRect screen = wxDisplay(static_cast<unsigned>(display)).GetClientArea();
        place.x = std::max(std::min(place.x, screen.GetRight() + 1 - size.x), screen.x);
        place.y = std::max(std::min(place.y, screen.GetBottom() + 1 - size.y), screen.y);
    }
    MoveFrame(window, place.GetTopLeft());
}

void KeepCentered(wxTopLevelWindow& window, const wxTopLevelWindow& main) {
    CenterWindow(window, main);
    OnEachShowing(window, [&window, &main] { CenterWindow(window, main); });
}

void ShowAppInfo(wxTextCtrl& box, const AppInfo& info) {
    // Without a selection the box would only scroll to the caret.
    if (box.HasSelection()) {
        const long caret = box.GetInsertionPoint();
        box.SetSelection(caret, caret);
    }
    WxMessageSink(&box).Show({std::string(kAppTitle) + " version " +
                                  std::to_string(info.majorVersion) + "." +
                                  std::to_string(info.minorVersion) + "\n\n" + info.copyright +
                                  "\n" + info.supportAddress,
                              kAppTitle, MessageIcon::Information, MessageButtons::Ok});
}

void ShowAppInfoOnMenuRequest(wxTextCtrl& box, const AppInfo& info) {
    box.Bind(wxEVT_RIGHT_DOWN, [&box, &info](wxMouseEvent&) { ShowAppInfo(box, info); });
    box.Bind(wxEVT_CONTEXT_MENU, [](wxContextMenuEvent&) {});  // not the toolkit's own
    box.Bind(wxEVT_KEY_DOWN, [&box, &info](wxKeyEvent& event) {
        // GTK and Windows give the same key different codes.
        const bool menuKey =
            (event.GetKeyCode() == WXK_MENU || event.GetKeyCode() == WXK_WINDOWS_MENU) &&
            event.GetModifiers() == wxMOD_NONE;
        const bool shiftF10 = event.GetKeyCode() == WXK_F10 && event.GetModifiers() == wxMOD_SHIFT;
        if (menuKey || shiftF10) {
            ShowAppInfo(box, info);
        } else {
            event.Skip();
        }
    });
}

void LeadAccessKeysTo(wxTopLevelWindow& window, const std::vector<LabelledControl>& controls) {
    std::vector<wxAcceleratorEntry> entries;
    for (const auto& [label, target] : controls) {
        const int ampersand = label->GetLabel().Find('&');
        if (ampersand == wxNOT_FOUND) {
            continue;
        }
        const wxUniChar key = wxToupper(label->GetLabel()[static_cast<std::size_t>(ampersand) + 1]);
        // Held by the handler, so that the number can be used again when the window is gone.
        const wxWindowIDRef command(wxWindow::NewControlId());
        entries.emplace_back(wxACCEL_ALT, static_cast<int>(key.GetValue()), command);
        window.Bind(
            wxEVT_MENU,
            [control = target, command](wxCommandEvent& /*event*/) { control->SetFocus(); },
            command);
    }
    window.SetAcceleratorTable(
        wxAcceleratorTable(static_cast<int>(entries.size()), entries.data()));
}

}  // namespace brelex
