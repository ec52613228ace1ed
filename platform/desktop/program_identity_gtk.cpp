// SPDX-License-Identifier: MIT
#include "platform/desktop/program_identity.h"

#include <gtk/gtk.h>

namespace brelex {

namespace {

const char* SpokenName(AtkObject* /*program*/) {
    return g_get_application_name();
}

}  // namespace

void SetDesktopEntry(const char* id) {
    g_set_prgname(id);
}

void SetSpokenProgramName(const char* name) {
    g_set_application_name(name);
    // GTK (3.24) always answers with the name that SetDesktopEntry sets.
    ATK_OBJECT_GET_CLASS(atk_get_root())->get_name = &SpokenName;
}

}  // namespace brelex
