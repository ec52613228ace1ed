// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

class wxStaticText;
class wxTopLevelWindow;
class wxWindow;

namespace brelex {

/// A label with an access key in its text, and the control that the key should lead to.
struct LabelledControl {
    const wxStaticText* label;
    wxWindow* target;
};

/// Makes the access keys of labels lead to their controls. On GTK labels do this by themselves.
/// Windows promises it only for dialogs. Call once for each window.
void LeadAccessKeysTo(wxTopLevelWindow& window, const std::vector<LabelledControl>& controls);

}  // namespace brelex
