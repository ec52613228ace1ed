// SPDX-License-Identifier: MIT
#include "platform/window/window_place.h"

#include <utility>

#include <wx/toplevel.h>

#include <gtk/gtk.h>

namespace brelex {

namespace {

GdkWindow* WindowOf(const wxTopLevelWindow& window) {
    return gtk_widget_get_window(GTK_WIDGET(window.GetHandle()));
}

// A function to call when a window is on the screen.
struct Showing {
    std::function<void()> act;
    bool isAwaited = true;
};

void OnShow(GtkWidget* /*widget*/, gpointer showing) {
    static_cast<Showing*>(showing)->isAwaited = true;
}

gboolean OnMapped(GtkWidget* /*widget*/, GdkEvent* /*event*/, gpointer data) {
    auto* const showing = static_cast<Showing*>(data);
    if (std::exchange(showing->isAwaited, false)) {
        showing->act();
    }
    return FALSE;
}

void DeleteShowing(gpointer showing, GClosure* /*closure*/) {
    delete static_cast<Showing*>(showing);
}

gboolean OnProperty(GtkWidget* /*widget*/, GdkEventProperty* event, gpointer act) {
    if (event->atom == gdk_atom_intern_static_string("_NET_FRAME_EXTENTS")) {
        (*static_cast<std::function<void()>*>(act))();
    }
    return FALSE;
}

void DeleteAct(gpointer act, GClosure* /*closure*/) {
    delete static_cast<std::function<void()>*>(act);
}

}  // namespace

// Asks the display, because the toolkit remembers only the values that it requested.
wxRect FrameOf(const wxTopLevelWindow& window) {
    GdkWindow* const inside = WindowOf(window);
    if (inside == nullptr) {
        return window.GetScreenRect();
    }
    GdkRectangle frame;
    gdk_window_get_frame_extents(inside, &frame);
    return {frame.x, frame.y, frame.width, frame.height};
}

wxSize FrameSizeOf(const wxTopLevelWindow& dialog) {
    GdkWindow* const inside = WindowOf(dialog);
    if (inside == nullptr) {
        return dialog.GetSize();
    }
    const wxSize shown(gdk_window_get_width(inside), gdk_window_get_height(inside));
    return dialog.GetClientSize() + FrameOf(dialog).GetSize() - shown;
}

void MoveFrame(wxTopLevelWindow& window, const wxPoint& corner) {
    window.Move(corner);
    // The toolkit does not move a window that it believes to be in place, and GTK does not move a
    // hidden window that was shown before (seen with 3.24).
    gtk_window_move(GTK_WINDOW(window.GetHandle()), corner.x, corner.y);
    GdkWindow* const inside = WindowOf(window);
    if (inside != nullptr && gdk_window_is_visible(inside) == FALSE) {
        gdk_window_move(inside, corner.x, corner.y);
    }
}

void OnEachShowing(wxTopLevelWindow& window, const std::function<void()>& act) {
    auto* const showing = new Showing{act};
    g_signal_connect(window.GetHandle(), "show", G_CALLBACK(OnShow), showing);
    g_signal_connect_data(window.GetHandle(), "map-event", G_CALLBACK(OnMapped), showing,
                          DeleteShowing, G_CONNECT_AFTER);
}

void OnEachNewFrame(wxTopLevelWindow& window, const std::function<void()>& act) {
    gtk_widget_add_events(GTK_WIDGET(window.GetHandle()), GDK_PROPERTY_CHANGE_MASK);
    g_signal_connect_data(window.GetHandle(), "property-notify-event", G_CALLBACK(OnProperty),
                          new std::function<void()>(act), DeleteAct, G_CONNECT_AFTER);
}

}  // namespace brelex
