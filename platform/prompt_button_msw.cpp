// SPDX-License-Identifier: MIT
#include "platform/prompt_button.h"

namespace brelex {

// They do here.
void ActAtOnceOnKeys(wxButton& /*button*/) {}

}  // namespace brelex
