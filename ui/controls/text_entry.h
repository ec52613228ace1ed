// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

class wxTextEntry;
class wxWindow;

namespace brelex {

/// Makes Ctrl+A select all of the text in a control, which not every version of Windows does.
/// `window` and `entry` are the same control.
void SelectAllOnCtrlA(wxWindow& window, wxTextEntry& entry);

/// Turns lowercase letters into capitals as the user types them into a control. Other characters
/// and pasted text stay as they are. `window` and `entry` are the same control.
void TypeInCapitals(wxWindow& window, wxTextEntry& entry);

/// Pastes the first line of the clipboard's text over the selection of a control, as far as it fits
/// within `maxLength` characters. GTK would delete the selection and then reject the whole text.
/// Returns false if the clipboard contains no text.
[[nodiscard]] bool PasteWhatFits(wxTextEntry& entry, std::size_t maxLength);

}  // namespace brelex
