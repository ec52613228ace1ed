// SPDX-License-Identifier: MIT
#include "platform/desktop/program_identity.h"

#include <gtk/gtk.h>

namespace brelex {

void SetDesktopEntry(const char* id) {
    g_set_prgname(id);
}

void SetSpokenProgramName(const char* name) {
    atk_object_set_name(atk_get_root(), name);
}

}  // namespace brelex
