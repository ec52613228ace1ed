// SPDX-License-Identifier: MIT
#include "ui/controls/access_keys.h"

#include <cstddef>

#include <wx/accel.h>
#include <wx/stattext.h>
#include <wx/toplevel.h>

namespace brelex {

void LeadAccessKeysTo(wxTopLevelWindow& window, const std::vector<LabelledControl>& controls) {
    std::vector<wxAcceleratorEntry> entries;
    for (const auto& [label, target] : controls) {
        const int ampersand = label->GetLabel().Find('&');
        if (ampersand == wxNOT_FOUND) {
            continue;
        }
        const wxUniChar key = wxToupper(label->GetLabel()[static_cast<std::size_t>(ampersand) + 1]);
        // The handler holds the number and frees it when the window is gone.
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
