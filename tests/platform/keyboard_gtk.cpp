// SPDX-License-Identifier: MIT
#include "tests/platform/keyboard.h"

#include <X11/Xlib.h>

#include <wx/toplevel.h>
#include <wx/uiaction.h>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

namespace brelex {

namespace {

// Whether the window that has the server's keyboard is this one or lies in it, as GTK's own does.
bool HasServersKeyboard(::Window window) {
    Display* const display = gdk_x11_get_default_xdisplay();
    ::Window at = None;
    int revertTo = 0;
    XGetInputFocus(display, &at, &revertTo);
    while (at > PointerRoot && at != window) {
        ::Window root = None;
        ::Window parent = None;
        ::Window* children = nullptr;
        unsigned count = 0;
        if (XQueryTree(display, at, &root, &parent, &children, &count) == 0) {
            return false;
        }
        if (children != nullptr) {
            XFree(children);
        }
        at = parent;
    }
    return at == window;
}

}  // namespace

bool HasKeyboard(wxTopLevelWindow& window) {
    GdkWindow* const drawn = gtk_widget_get_window(GTK_WIDGET(window.GetHandle()));
    if (!window.IsActive() || drawn == nullptr) {
        return false;
    }
    gdk_x11_display_error_trap_push(
        gdk_display_get_default());  // the other one may just be closing
    const bool has = HasServersKeyboard(gdk_x11_window_get_xid(drawn));
    gdk_x11_display_error_trap_pop_ignored(gdk_display_get_default());
    return has;
}

// The server answers behind all that it was sent before.
void AwaitSimulatedInput() {
    gdk_display_sync(gdk_display_get_default());
}

void PressSelectAll() {
    wxUIActionSimulator().Char('A', wxMOD_CONTROL);
}

void PressKeypadEnter() {
    wxUIActionSimulator().Char(WXK_NUMPAD_ENTER);
}

}  // namespace brelex
