// SPDX-License-Identifier: MIT
#include "platform/desktop/lone_window_gtk.h"

#include <cstddef>

#include <wx/iconbndl.h>

#include "toolkit/app_icon.h"

namespace brelex {

void MakeFindable(GtkWindow* window) {
    const wxIconBundle icons = AppIcons();
    GList* pictures = nullptr;
    for (std::size_t i = 0; i < icons.GetIconCount(); ++i) {
        pictures = g_list_append(pictures, icons.GetIconByIndex(i).GetPixbuf());
    }
    gtk_window_set_icon_list(window, pictures);  // this copies the pictures
    g_list_free(pictures);
    gtk_window_set_skip_taskbar_hint(window, FALSE);  // message boxes set it
    gtk_window_set_urgency_hint(window, TRUE);
    g_signal_connect(window, "focus-in-event",
                     G_CALLBACK(+[](GtkWidget* focused, GdkEvent* /*event*/, void* /*data*/) {
                         gtk_window_set_urgency_hint(GTK_WINDOW(focused), FALSE);
                         return FALSE;
                     }),
                     nullptr);
}

}  // namespace brelex
