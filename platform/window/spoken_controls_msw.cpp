// SPDX-License-Identifier: MIT
#include "platform/window/spoken_controls.h"

namespace brelex {

// Both controls are the system's.
void NameToolsByTips(wxToolBar& /*toolBar*/) {}

void SpeakTree(wxTreeCtrl& /*tree*/) {}

}  // namespace brelex
