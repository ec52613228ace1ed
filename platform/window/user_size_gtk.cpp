// SPDX-License-Identifier: MIT
#include "platform/window/user_size.h"

#include <wx/toplevel.h>

#include <gtk/gtk.h>

namespace brelex {

namespace {

// The toolkit's style for this would count for hidden windows too, whose frame it must guess: they
// would come up too small or too large by their title. It also tells window managers what a window
// without the style may do, so they must hear of the change.
void AllowResizing(wxTopLevelWindow& window, bool allow) {
    gtk_window_set_resizable(GTK_WINDOW(window.GetHandle()), allow ? TRUE : FALSE);
    GdkWindow* const shown = gtk_widget_get_window(GTK_WIDGET(window.GetHandle()));
    if (shown == nullptr) {
        return;
    }
    unsigned functions = GDK_FUNC_MOVE | GDK_FUNC_CLOSE;
    unsigned decorations = GDK_DECOR_BORDER | GDK_DECOR_TITLE | GDK_DECOR_MENU;
    if (allow) {
        functions |= GDK_FUNC_RESIZE;
        decorations |= GDK_DECOR_RESIZEH;
    }
    gdk_window_set_functions(shown, static_cast<GdkWMFunction>(functions));
    gdk_window_set_decorations(shown, static_cast<GdkWMDecoration>(decorations));
}

}  // namespace

void LetUserResize(wxTopLevelWindow& window, const wxSize& smallest, const wxSize& size) {
    gtk_widget_set_size_request(GTK_WIDGET(window.GetHandle()), smallest.x, smallest.y);
    // GTK would tell later. By then a window manager may have put the frame of a fixed size around
    // it.
    GdkWindow* const shown = gtk_widget_get_window(GTK_WIDGET(window.GetHandle()));
    if (shown != nullptr) {
        GdkGeometry limits{};
        limits.min_width = smallest.x;
        limits.min_height = smallest.y;
        gdk_window_set_geometry_hints(shown, &limits, GDK_HINT_MIN_SIZE);
    }
    AllowResizing(window, true);
    window.SetClientSize(size);
    // The toolkit does nothing if it believes that the window has that size, as it had once.
    gtk_window_resize(GTK_WINDOW(window.GetHandle()), size.x, size.y);
}

void KeepSizeFromUser(wxTopLevelWindow& window) {
    AllowResizing(window, false);
}

}  // namespace brelex
