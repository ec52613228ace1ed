// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

class wxTextEntry;
class wxWindow;

namespace brelex {

/// Has Ctrl+A select all text of a control, which Windows' own does not do on every version of the
/// system. `window` and `entry` are the same control.
void SelectAllOnCtrlA(wxWindow& window, wxTextEntry& entry);

/// Has small letters that are typed into a control become capitals. Other characters, and what is
/// pasted, stay as they are. `window` and `entry` are the same control.
void TypeInCapitals(wxWindow& window, wxTextEntry& entry);

/// Pastes the clipboard's text over the selection of a control, of its first line what fits within
/// `maxLength` characters. GTK by itself would delete the selection and then refuse all of it.
/// Returns false if the clipboard has no text.
[[nodiscard]] bool PasteWhatFits(wxTextEntry& entry, std::size_t maxLength);

}  // namespace brelex
