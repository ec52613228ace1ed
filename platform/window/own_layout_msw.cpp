// SPDX-License-Identifier: MIT
#include "platform/window/own_layout.h"

namespace brelex {

// On Windows the size of a control never depends on its text.
void LayOutAlone(wxWindow& /*window*/) {}

}  // namespace brelex
