// SPDX-License-Identifier: MIT
#include "ui/controls/text_entry.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/textentry.h>
#include <wx/window.h>

namespace brelex {

void SelectAllOnCtrlA(wxWindow& window, wxTextEntry& entry) {
    window.Bind(wxEVT_KEY_DOWN, [&entry](wxKeyEvent& event) {
        if (event.GetKeyCode() == 'A' && event.GetModifiers() == wxMOD_CONTROL) {
            entry.SelectAll();
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
        entry.Remove(from, to);  // GTK sends no event when nothing replaces a selection
    } else {
        entry.WriteText(pasted);
    }
    return true;
}

}  // namespace brelex
