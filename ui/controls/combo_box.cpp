// SPDX-License-Identifier: MIT
#include "ui/controls/combo_box.h"

#include <algorithm>

#include <wx/combobox.h>

#include "platform/window/combo_button.h"
#include "ui/controls/text_entry.h"

namespace brelex {

ComboTextLimit::ComboTextLimit(wxComboBox& combo) : combo_(combo) {
    KeepFocusOffButton(combo);
    combo.Bind(wxEVT_TEXT, [this](wxCommandEvent& event) {
        Apply();
        event.Skip();
    });
    combo.Bind(wxEVT_TEXT_PASTE, [this](wxClipboardTextEvent& event) {
        event.Skip(limit_ == 0 || !PasteWhatFits(combo_, limit_));
    });
    combo.Bind(wxEVT_COMBOBOX, [this](wxCommandEvent& event) {
        RestorePickedText();
        event.Skip();
    });
}

void ComboTextLimit::Set(std::size_t length) {
    limit_ = length;
    Apply();
}

// On GTK the toolkit cuts text that is longer than the limit, so the limit is never shorter than
// the text.
void ComboTextLimit::Apply() {
    const std::size_t length = std::max(limit_, combo_.GetValue().length());
    combo_.SetMaxLength(limit_ == 0 ? 0 : static_cast<unsigned long>(length));
}

void ComboTextLimit::RestorePickedText() {
    const int picked = combo_.GetSelection();
    if (picked != wxNOT_FOUND &&
        combo_.GetString(static_cast<unsigned>(picked)) != combo_.GetValue()) {
        const wxString text = combo_.GetString(static_cast<unsigned>(picked));
        combo_.SetMaxLength(0);
        combo_.SetValue(text);  // this sends an event
    }
    Apply();
}

}  // namespace brelex
