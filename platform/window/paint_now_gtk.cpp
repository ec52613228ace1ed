// SPDX-License-Identifier: MIT
#include "platform/window/paint_now.h"

#include <wx/window.h>

#include <gdk/gdkwayland.h>
#include <gtk/gtk.h>

namespace brelex {

namespace {

gboolean NoteDrawn(GtkWidget* /*widget*/, cairo_t* /*context*/, gpointer drawn) {
    *static_cast<bool*>(drawn) = true;
    return FALSE;
}

gboolean NoteOverdue(gpointer overdue) {
    *static_cast<bool*>(overdue) = true;
    return G_SOURCE_REMOVE;
}

}  // namespace

void PaintFirst(wxWindow& window) {
    GtkWidget* const widget = GTK_WIDGET(window.GetHandle());
    bool drawn = false;
    bool overdue = false;
    const gulong handler = g_signal_connect_after(widget, "draw", G_CALLBACK(NoteDrawn), &drawn);
    constexpr guint kPatienceMs = 200;
    const guint timer = g_timeout_add(kPatienceMs, NoteOverdue, &overdue);
    gtk_widget_queue_draw(widget);
    while (!drawn && !overdue) {
        gtk_main_iteration();
    }
    if (!overdue) {
        g_source_remove(timer);
    }
    g_signal_handler_disconnect(widget, handler);
    gdk_display_flush(gtk_widget_get_display(widget));
}

// Paints at once, without waiting for the display's next frame.
void PaintNow(wxWindow& window) {
    GtkWidget* const widget = GTK_WIDGET(window.GetHandle());
    GdkWindow* const inside = gtk_widget_get_window(widget);
    if (inside == nullptr) {
        return;  // not on the screen
    }
    gtk_container_check_resize(GTK_CONTAINER(widget));
    G_GNUC_BEGIN_IGNORE_DEPRECATIONS  // GTK 3 offers no other way, GTK 4 none at all
        gdk_window_process_updates(inside, TRUE);
    G_GNUC_END_IGNORE_DEPRECATIONS
    // On Wayland, GTK hands over what it has painted only at the end of a frame.
    if (GDK_IS_WAYLAND_DISPLAY(gtk_widget_get_display(widget))) {
        g_signal_emit_by_name(gtk_widget_get_frame_clock(widget), "after-paint");
    }
    gdk_display_flush(gtk_widget_get_display(widget));
}

void NeverFade(wxWindow& window) {
    constexpr const char* kClass = "never-fade";
    GtkWidget* const widget = GTK_WIDGET(window.GetHandle());
    GtkCssProvider* const rule = gtk_css_provider_new();
    gtk_css_provider_load_from_data(rule, ".never-fade, .never-fade * { transition: none; }", -1,
                                    nullptr);
    gtk_style_context_add_provider_for_screen(gtk_widget_get_screen(widget),
                                              GTK_STYLE_PROVIDER(rule),
                                              GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(rule);
    gtk_style_context_add_class(gtk_widget_get_style_context(widget), kClass);
}

}  // namespace brelex
