// SPDX-License-Identifier: MIT
#include "platform/window/prompt_button.h"

namespace brelex {

// They do here.
void ActAtOnceOnKeys(wxButton& /*button*/) {}

}  // namespace brelex
