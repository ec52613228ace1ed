// SPDX-License-Identifier: MIT
#include "platform/window/combo_button.h"

namespace brelex {

// The system's combo boxes have one focus.
void KeepFocusOffButton(wxComboBox& /*combo*/) {}

}  // namespace brelex
