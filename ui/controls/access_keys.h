// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

class wxStaticText;
class wxTopLevelWindow;
class wxWindow;

namespace brelex {

/// A label with an access key in its text, and where the key leads.
struct LabelledControl {
    const wxStaticText* label;
    wxWindow* target;
};

/// Has the access keys of labels lead to the controls behind them. On GTK a label does so by
/// itself; Windows promises it for dialogs only. Call once for each window.
void LeadAccessKeysTo(wxTopLevelWindow& window, const std::vector<LabelledControl>& controls);

}  // namespace brelex
