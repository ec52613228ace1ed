// SPDX-License-Identifier: MIT
#pragma once

namespace brelex {

/// Makes the mark of the control that has the focus easy to see in all windows of the program.
/// GTK's usual theme draws it in a third of the strength of text, with a contrast of less than 2:1.
void MakeFocusMarksSeen();

}  // namespace brelex
