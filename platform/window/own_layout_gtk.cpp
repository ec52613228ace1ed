// SPDX-License-Identifier: MIT
#include "platform/window/own_layout.h"

#include <wx/window.h>

#include <gtk/gtk.h>

namespace brelex {

void LayOutAlone(wxWindow& window) {
    G_GNUC_BEGIN_IGNORE_DEPRECATIONS  // GTK 3 offers no other way
        gtk_container_set_resize_mode(GTK_CONTAINER(window.m_wxwindow), GTK_RESIZE_QUEUE);
    G_GNUC_END_IGNORE_DEPRECATIONS
}

}  // namespace brelex
