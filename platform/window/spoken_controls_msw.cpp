// SPDX-License-Identifier: MIT
#include "platform/window/spoken_controls.h"

namespace brelex {

// All these controls are the system's.
void NameToolsByTips(wxToolBar& /*toolBar*/) {}

void SpeakOnlyName(wxStaticText& /*label*/, const wxString& /*name*/) {}

void SpeakTree(wxTreeCtrl& /*tree*/) {}

}  // namespace brelex
