// SPDX-License-Identifier: MIT
#include "tests/platform/screen.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <cstddef>
#include <string>
#include <vector>

#include <wx/dataview.h>
#include <wx/toplevel.h>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include "platform/list/entry_list_control.h"

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

// The text of the first label that is shown in a widget.
std::string ShownText(GtkWidget* widget) {
    if (widget == nullptr || gtk_widget_get_visible(widget) == FALSE) {
        return {};
    }
    if (GTK_IS_LABEL(widget)) {
        return gtk_label_get_text(GTK_LABEL(widget));
    }
    std::string text;
    if (GTK_IS_CONTAINER(widget)) {
        GList* const children = gtk_container_get_children(GTK_CONTAINER(widget));
        for (const GList* child = children; child != nullptr && text.empty(); child = child->next) {
            text = ShownText(GTK_WIDGET(child->data));
        }
        g_list_free(children);
    }
    return text;
}

wxRect PlaceOf(GtkWidget* topLevel) {
    GdkWindow* const window = gtk_widget_get_window(topLevel);
    wxRect place;
    gdk_window_get_origin(window, &place.x, &place.y);
    place.width = gdk_window_get_width(window);
    place.height = gdk_window_get_height(window);
    return place;
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

wxSize ScreenSize() {
    Display* const display = gdk_x11_get_default_xdisplay();
    return {DisplayWidth(display, DefaultScreen(display)),
            DisplayHeight(display, DefaultScreen(display))};
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

wxImage PictureOnScreen(wxWindow& window) {
    // The display counts its own pixels, of which the toolkit's may be several.
    const int scale = gtk_widget_get_scale_factor(window.GetHandle());
    const wxRect area = window.GetScreenRect();
    Display* const display = gdk_x11_get_default_xdisplay();
    XImage* const pixels =
        XGetImage(display, DefaultRootWindow(display), area.x * scale, area.y * scale,
                  static_cast<unsigned>(area.width * scale),
                  static_cast<unsigned>(area.height * scale), AllPlanes, ZPixmap);
    wxImage picture(area.width * scale, area.height * scale);
    for (int y = 0; y < picture.GetHeight(); ++y) {
        for (int x = 0; x < picture.GetWidth(); ++x) {
            const unsigned long pixel = XGetPixel(pixels, x, y);  // 24 bits: red, green, blue
            picture.SetRGB(x, y, static_cast<unsigned char>(pixel >> 16U),
                           static_cast<unsigned char>(pixel >> 8U),
                           static_cast<unsigned char>(pixel));
        }
    }
    XDestroyImage(pixels);
    return picture;
}

ToolTipView ToolTipOnScreen() {
    GList* const windows = gtk_window_list_toplevels();
    ToolTipView tip;
    for (const GList* item = windows; item != nullptr; item = item->next) {
        auto* const widget = GTK_WIDGET(item->data);
        const bool isTip =
            gtk_window_get_type_hint(GTK_WINDOW(widget)) == GDK_WINDOW_TYPE_HINT_TOOLTIP;
        if (isTip && gtk_widget_get_mapped(widget) != FALSE) {
            tip = {ShownText(gtk_bin_get_child(GTK_BIN(widget))), PlaceOf(widget)};
        }
    }
    g_list_free(windows);
    return tip;
}

wxRect MenuOnScreen() {
    GList* const windows = gtk_window_list_toplevels();
    wxRect place;
    for (const GList* item = windows; item != nullptr; item = item->next) {
        auto* const widget = GTK_WIDGET(item->data);
        GtkWidget* const child = gtk_bin_get_child(GTK_BIN(widget));
        if (GTK_IS_MENU(child) && gtk_widget_get_mapped(widget) != FALSE) {
            place = PlaceOf(widget);
        }
    }
    g_list_free(windows);
    return place;
}

ListView ViewOf(EntryListControl& list) {
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
