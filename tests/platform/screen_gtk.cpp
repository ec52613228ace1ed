// SPDX-License-Identifier: MIT
#include "tests/platform/screen.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <vector>

#include <wx/dataview.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include "platform/list/entry_list_control.h"

namespace brelex {

namespace {

GtkWidget* Widget(SystemWindow window) {
    return static_cast<GtkWidget*>(window);
}

GdkWindow* Drawn(SystemWindow window) {
    return gtk_widget_get_window(Widget(window));
}

::Display* Server() {
    return GDK_DISPLAY_XDISPLAY(gdk_display_get_default());
}

::Window XidOf(SystemWindow window) {
    return GDK_WINDOW_XID(Drawn(window));
}

SystemWindow FindOpen(const std::function<bool(GtkWindow*)>& wanted) {
    GList* const windows = gtk_window_list_toplevels();
    SystemWindow found = nullptr;
    for (GList* at = windows; at != nullptr; at = at->next) {
        auto* const widget = GTK_WIDGET(at->data);
        if (gtk_widget_get_mapped(widget) != FALSE && wanted(GTK_WINDOW(widget))) {
            found = widget;
        }
    }
    g_list_free(windows);
    return found;
}

// A property that the window manager keeps on the server. Its 32-bit items come as longs.
std::vector<unsigned long> Property(SystemWindow window, const char* name) {
    ::Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    constexpr long kMost = 1L << 20;
    XGetWindowProperty(Server(), XidOf(window), XInternAtom(Server(), name, False), 0, kMost, False,
                       AnyPropertyType, &type, &format, &count, &left, &data);
    const auto* const items = reinterpret_cast<const unsigned long*>(data);
    std::vector<unsigned long> values;
    if (format == 32) {
        values.assign(items, items + count);
    }
    if (data != nullptr) {
        XFree(data);
    }
    return values;
}

bool HasState(SystemWindow window, const char* state) {
    const std::vector<unsigned long> states = Property(window, "_NET_WM_STATE");
    const ::Atom atom = XInternAtom(Server(), state, False);
    return std::find(states.begin(), states.end(), atom) != states.end();
}

// Blends a color of 0 to 255 with what is behind it.
unsigned char Over(unsigned color, unsigned alpha, unsigned ground) {
    return static_cast<unsigned char>((color * alpha + ground * (255 - alpha)) / 255);
}

wxRect AreaOfWidget(GtkWidget* widget) {
    GtkWidget* const top = gtk_widget_get_toplevel(widget);
    int left = 0;
    int upper = 0;
    gdk_window_get_origin(gtk_widget_get_window(top), &left, &upper);
    int x = 0;
    int y = 0;
    gtk_widget_translate_coordinates(widget, top, 0, 0, &x, &y);
    return {left + x, upper + y, gtk_widget_get_allocated_width(widget),
            gtk_widget_get_allocated_height(widget)};
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

SystemWindow SystemWindowOf(const wxTopLevelWindow& window) {
    return window.GetHandle();
}

SystemWindow OpenWindow(const std::string& title) {
    return FindOpen([&](GtkWindow* window) {
        const char* const shown = gtk_window_get_title(window);
        return shown != nullptr && title == shown;
    });
}

bool TakesKeys(SystemWindow window) {
    return window != nullptr && gtk_window_is_active(GTK_WINDOW(Widget(window))) != FALSE;
}

SystemWindow OwnerOf(SystemWindow window) {
    ::Window owner = 0;
    if (XGetTransientForHint(Server(), XidOf(window), &owner) == 0) {
        return nullptr;
    }
    GdkWindow* const drawn = gdk_x11_window_lookup_for_display(gdk_display_get_default(), owner);
    void* widget = nullptr;
    if (drawn != nullptr) {
        gdk_window_get_user_data(drawn, &widget);
    }
    return widget;
}

wxRect AreaOf(SystemWindow window) {
    return AreaOfWidget(Widget(window));
}

bool IsInTaskBar(SystemWindow window) {
    return OwnerOf(window) == nullptr && !HasState(window, "_NET_WM_STATE_SKIP_TASKBAR");
}

bool IsKeptAbove(SystemWindow window) {
    return HasState(window, "_NET_WM_STATE_ABOVE");
}

bool IsKeptAbove(const wxTopLevelWindow& window) {
    return IsKeptAbove(SystemWindowOf(window));
}

bool CanBeResized(SystemWindow window) {
    XSizeHints hints{};
    long supplied = 0;
    XGetWMNormalHints(Server(), XidOf(window), &hints, &supplied);
    const bool limited = (hints.flags & PMinSize) != 0 && (hints.flags & PMaxSize) != 0;
    return !limited || hints.min_width != hints.max_width || hints.min_height != hints.max_height;
}

wxImage IconOf(SystemWindow window, int size) {
    // Each icon is its width, its height and its pixels.
    const std::vector<unsigned long> icons = Property(window, "_NET_WM_ICON");
    std::size_t at = 0;
    while (at + 2 <= icons.size()) {
        const std::size_t pixels = icons[at] * icons[at + 1];
        if (icons[at] != static_cast<unsigned long>(size) || at + 2 + pixels > icons.size()) {
            at += 2 + pixels;
            continue;
        }
        wxImage image(size, size);
        for (std::size_t i = 0; i < pixels; ++i) {
            const auto pixel = static_cast<std::uint32_t>(icons[at + 2 + i]);
            const unsigned alpha = pixel >> 24U;
            for (const unsigned channel : {0U, 1U, 2U}) {
                image.GetData()[3 * i + channel] =
                    Over((pixel >> (16U - 8U * channel)) & 0xFFU, alpha, 0);
            }
        }
        return image;
    }
    return {};
}

// The window manager says in WM_STATE what it has made of a wish.
bool IsOnScreen(const wxTopLevelWindow& window) {
    auto* const shown = SystemWindowOf(window);
    XWindowAttributes attributes;
    XGetWindowAttributes(Server(), XidOf(shown), &attributes);
    const std::vector<unsigned long> state = Property(shown, "WM_STATE");
    return attributes.map_state == IsViewable || (!state.empty() && state[0] == NormalState);
}

wxRect FrameOnScreen(const wxTopLevelWindow& window) {
    ::Display* const display = Server();
    const ::Window inside = XidOf(SystemWindowOf(window));
    XWindowAttributes attributes;
    XGetWindowAttributes(display, inside, &attributes);
    int x = 0;
    int y = 0;
    ::Window child = None;
    XTranslateCoordinates(display, inside, DefaultRootWindow(display), 0, 0, &x, &y, &child);
    wxRect frame(x, y, attributes.width, attributes.height);
    const auto extents =
        Property(SystemWindowOf(window), "_NET_FRAME_EXTENTS");  // left, right, top, bottom
    if (extents.size() == 4) {
        const auto at = [&](std::size_t i) { return static_cast<int>(extents[i]); };
        frame = {x - at(0), y - at(2), frame.width + at(0) + at(1), frame.height + at(2) + at(3)};
    }
    return frame;
}

wxSize ScreenSize() {
    ::Display* const display = Server();
    return {DisplayWidth(display, DefaultScreen(display)),
            DisplayHeight(display, DefaultScreen(display))};
}

// From the server itself: the toolkit's way may give what was there when it looked before. The
// server counts its own pixels, of which the toolkit's may be several.
wxImage PictureOfScreen(const wxRect& area) {
    const int scale =
        gdk_monitor_get_scale_factor(gdk_display_get_monitor(gdk_display_get_default(), 0));
    XImage* const seen = XGetImage(Server(), DefaultRootWindow(Server()), area.x * scale,
                                   area.y * scale, static_cast<unsigned>(area.width * scale),
                                   static_cast<unsigned>(area.height * scale), AllPlanes, ZPixmap);
    if (seen == nullptr) {
        return {};
    }
    wxImage picture(area.width * scale, area.height * scale);
    for (int y = 0; y < picture.GetHeight(); ++y) {
        for (int x = 0; x < picture.GetWidth(); ++x) {
            const unsigned long pixel = XGetPixel(seen, x, y);  // 24 bits: red, green, blue
            picture.SetRGB(x, y, static_cast<unsigned char>(pixel >> 16U),
                           static_cast<unsigned char>(pixel >> 8U),
                           static_cast<unsigned char>(pixel));
        }
    }
    XDestroyImage(seen);
    return picture;
}

// An empty area is of one color.
bool ShowsTrayIcon() {
    const wxImage corner = PictureOfScreen({4, 4, 16, 16});
    const unsigned char* const first = corner.GetData();
    const std::size_t bytes = 3 * static_cast<std::size_t>(corner.GetWidth()) *
                              static_cast<std::size_t>(corner.GetHeight());
    return std::memcmp(first, first + 3, bytes - 3) != 0;
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

std::string SpokenNameOf(wxWindow& control) {
    const char* const name = atk_object_get_name(gtk_widget_get_accessible(control.GetHandle()));
    return name == nullptr ? "" : name;
}

int LeftOfCharacter(const wxTextCtrl& box, long row, long column) {
    return box.PositionToCoords(box.XYToPosition(column, row)).x;
}

}  // namespace brelex
