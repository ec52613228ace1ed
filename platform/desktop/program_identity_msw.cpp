// SPDX-License-Identifier: MIT
#include "platform/desktop/program_identity.h"

namespace brelex {

void SetDesktopEntry(const char* /*id*/) {}

void SetSpokenProgramName(const char* /*name*/) {}

}  // namespace brelex
