// SPDX-License-Identifier: MIT
#pragma once

class wxComboBox;

namespace brelex {

/// Lets a combo box show its items in a list with a scroll bar below it. Otherwise GTK opens a menu
/// that covers the screen from top to bottom if there are many items.
void ShowItemsAsList(wxComboBox& combo);

}  // namespace brelex
