// SPDX-License-Identifier: MIT
#include "tests/platform/screen.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <cstddef>
#include <string>
#include <vector>

#include <wx/dataview.h>
#include <wx/toplevel.h>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include "platform/acronym_list.h"

namespace brelex {

namespace {

GdkWindow* WindowOf(const wxTopLevelWindow& window) {
    return gtk_widget_get_window(GTK_WIDGET(window.GetHandle()));
}

// The numbers of a property; none if it is not set.
std::vector<unsigned long> Property(const wxTopLevelWindow& window, const char* name) {
    Display* const display = gdk_x11_get_default_xdisplay();
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    constexpr long kMost = 64;
    XGetWindowProperty(display, gdk_x11_window_get_xid(WindowOf(window)),
                       XInternAtom(display, name, False), 0, kMost, False, AnyPropertyType, &type,
                       &format, &count, &rest, &data);
    std::vector<unsigned long> numbers;
    for (unsigned long i = 0; i < count; ++i) {
        numbers.push_back(reinterpret_cast<const unsigned long*>(data)[i]);
    }
    if (data != nullptr) {
        XFree(data);
    }
    return numbers;
}

}  // namespace

wxRect FrameOnScreen(const wxTopLevelWindow& window) {
    Display* const display = gdk_x11_get_default_xdisplay();
    const ::Window inside = gdk_x11_window_get_xid(WindowOf(window));
    XWindowAttributes attributes;
    XGetWindowAttributes(display, inside, &attributes);
    int x = 0;
    int y = 0;
    ::Window child = None;
    XTranslateCoordinates(display, inside, DefaultRootWindow(display), 0, 0, &x, &y, &child);
    wxRect frame(x, y, attributes.width, attributes.height);
    const auto extents = Property(window, "_NET_FRAME_EXTENTS");  // left, right, top, bottom
    if (extents.size() == 4) {
        const auto at = [&](std::size_t i) { return static_cast<int>(extents[i]); };
        frame = {x - at(0), y - at(2), frame.width + at(0) + at(1), frame.height + at(2) + at(3)};
    }
    return frame;
}

bool IsKeptAbove(const wxTopLevelWindow& window) {
    const Atom above = XInternAtom(gdk_x11_get_default_xdisplay(), "_NET_WM_STATE_ABOVE", False);
    for (const unsigned long state : Property(window, "_NET_WM_STATE")) {
        if (state == above) {
            return true;
        }
    }
    return false;
}

wxRect MenuOnScreen() {
    GList* const windows = gtk_window_list_toplevels();
    wxRect place;
    for (const GList* item = windows; item != nullptr; item = item->next) {
        auto* const widget = GTK_WIDGET(item->data);
        GtkWidget* const child = gtk_bin_get_child(GTK_BIN(widget));
        if (GTK_IS_MENU(child) && gtk_widget_get_mapped(widget) != FALSE) {
            GdkWindow* const window = gtk_widget_get_window(widget);
            gdk_window_get_origin(window, &place.x, &place.y);
            place.width = gdk_window_get_width(window);
            place.height = gdk_window_get_height(window);
        }
    }
    g_list_free(windows);
    return place;
}

ListView ViewOf(AcronymList& list) {
    auto& control = dynamic_cast<wxDataViewCtrl&>(list.Window());
    auto* const view = GTK_TREE_VIEW(control.GtkGetTreeView());
    GtkTreePath* const first = gtk_tree_path_new_first();
    GdkRectangle row;
    gtk_tree_view_get_background_area(view, first, nullptr, &row);
    gtk_tree_path_free(first);
    GdkRectangle seen;
    gtk_tree_view_get_visible_rect(view, &seen);
    return {row.height, seen.height, -seen.y};
}

}  // namespace brelex
