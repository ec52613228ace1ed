// SPDX-License-Identifier: MIT
// Under X11 the page is a property of the viewer's window. The viewer removes it. Wayland offers
// nothing like it.
#include "platform/desktop/help_page.h"

#include <utility>

#include <wx/toplevel.h>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

namespace brelex {

namespace {

const char* const kProperty = "_BREVILEXICON_HELP_PAGE";
const char* const kTextType = "UTF8_STRING";
constexpr int kItemBits = 8;

using TurnTo = std::function<void(const std::string& page)>;

// Reads the property and removes it from the window. Empty if it is not text.
std::string TakenPage(GdkWindow* window, GdkAtom property) {
    constexpr gulong kMostBytes = 1024;
    GdkAtom type = GDK_NONE;
    gint bits = 0;
    gint length = 0;
    guchar* bytes = nullptr;
    std::string page;
    if (gdk_property_get(window, property, gdk_atom_intern_static_string(kTextType), 0, kMostBytes,
                         FALSE, &type, &bits, &length, &bytes) != FALSE &&
        bits == kItemBits) {
        page.assign(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length));
    }
    g_free(bytes);
    gdk_property_delete(window, property);
    return page;
}

gboolean OnProperty(GtkWidget*, GdkEventProperty* event, gpointer turnTo) {
    if (event->state != GDK_PROPERTY_NEW_VALUE ||
        event->atom != gdk_atom_intern_static_string(kProperty)) {
        return FALSE;
    }
    const std::string page = TakenPage(event->window, event->atom);
    if (!page.empty()) {
        (*static_cast<TurnTo*>(turnTo))(page);
    }
    return TRUE;
}

void Forget(gpointer turnTo, GClosure*) {
    delete static_cast<TurnTo*>(turnTo);
}

}  // namespace

void TellHelpPage(SystemWindow window, const std::string& page) {
    GdkDisplay* const gdk = gdk_display_get_default();
    if (gdk == nullptr || !GDK_IS_X11_DISPLAY(gdk)) {
        return;
    }
    Display* const display = gdk_x11_display_get_xdisplay(gdk);
    gdk_x11_display_error_trap_push(gdk);  // the window may no longer exist
    XChangeProperty(display, window, XInternAtom(display, kProperty, False),
                    XInternAtom(display, kTextType, False), kItemBits, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(page.data()),
                    static_cast<int>(page.size()));
    XFlush(display);
    gdk_x11_display_error_trap_pop_ignored(gdk);
}

void HearHelpPages(wxTopLevelWindow& window, TurnTo turnTo) {
    gtk_widget_add_events(window.GetHandle(), GDK_PROPERTY_CHANGE_MASK);
    g_signal_connect_data(window.GetHandle(), "property-notify-event", G_CALLBACK(&OnProperty),
                          new TurnTo(std::move(turnTo)), &Forget, static_cast<GConnectFlags>(0));
}

}  // namespace brelex
