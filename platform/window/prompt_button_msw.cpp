// SPDX-License-Identifier: MIT
#include "platform/window/prompt_button.h"

namespace brelex {

// On Windows all buttons act at once.
void ActAtOnceOnKeys(wxButton& /*button*/) {}

}  // namespace brelex
