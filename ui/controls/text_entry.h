// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

class wxTextEntry;
class wxWindow;

namespace brelex {

/// Makes Ctrl+A select all text of a control, which not every version of Windows does. `window` and
/// `entry` are the same control.
void SelectAllOnCtrlA(wxWindow& window, wxTextEntry& entry);

/// Turns small letters into capitals as they are typed into a control. Other characters and pasted
/// text stay as they are. `window` and `entry` are the same control.
void TypeInCapitals(wxWindow& window, wxTextEntry& entry);

/// Pastes the first line of the clipboard's text over the selection of a control, as much of it as
/// fits within `maxLength` characters. GTK would delete the selection and then refuse the whole
/// text. Returns false if the clipboard has no text.
[[nodiscard]] bool PasteWhatFits(wxTextEntry& entry, std::size_t maxLength);

}  // namespace brelex
