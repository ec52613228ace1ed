// SPDX-License-Identifier: MIT
#pragma once

class wxComboBox;

namespace brelex {

/// Keeps the focus off the button of a combo box. On it the focus would be nowhere for a screen
/// reader; keys open the list from the text, too.
void KeepFocusOffButton(wxComboBox& combo);

}  // namespace brelex
