// SPDX-License-Identifier: MIT
#include "platform/window/prompt_button.h"

#include <wx/button.h>

#include <gtk/gtk.h>

namespace brelex {

namespace {

// The button now looks pressed and waits. The release of any key ends the wait.
void OnActivate(GtkWidget* button, gpointer /*data*/) {
    GdkEventKey release{};
    release.type = GDK_KEY_RELEASE;
    release.window = gtk_widget_get_window(button);
    release.time = gtk_get_current_event_time();
    GTK_WIDGET_GET_CLASS(button)->key_release_event(button, &release);
}

}  // namespace

void ActAtOnceOnKeys(wxButton& button) {
    g_signal_connect(button.GetHandle(), "activate", G_CALLBACK(OnActivate), nullptr);
}

}  // namespace brelex
