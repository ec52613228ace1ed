// SPDX-License-Identifier: MIT
#include "tests/platform/system_window.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

#include <wx/textctrl.h>
#include <wx/toplevel.h>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

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

template <typename Visit>
void ForEachWidget(GtkWidget* widget, const Visit& visit) {
    visit(widget);
    if (GTK_IS_CONTAINER(widget)) {
        GList* const children = gtk_container_get_children(GTK_CONTAINER(widget));
        for (GList* at = children; at != nullptr; at = at->next) {
            ForEachWidget(GTK_WIDGET(at->data), visit);
        }
        g_list_free(children);
    }
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

const char* IconName(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Information:
            return "dialog-information";
        case MessageIcon::Question:
            return "dialog-question";
        case MessageIcon::Exclamation:
            return "dialog-warning";
        default:
            return "dialog-error";
    }
}

}  // namespace

SystemWindow SystemWindowOf(const wxTopLevelWindow& window) {
    return window.GetHandle();
}

SystemWindow OpenMessageBox() {
    return FindOpen([](GtkWindow* window) { return GTK_IS_MESSAGE_DIALOG(window) != FALSE; });
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

// From the server itself: the toolkit's way may give what was there when it looked before.
wxImage PictureOfScreen(const wxRect& area) {
    wxImage image(area.GetSize());
    XImage* const seen = XGetImage(Server(), DefaultRootWindow(Server()), area.x, area.y,
                                   static_cast<unsigned>(area.width),
                                   static_cast<unsigned>(area.height), AllPlanes, ZPixmap);
    if (seen == nullptr) {
        return {};
    }
    for (int y = 0; y < area.height; ++y) {
        for (int x = 0; x < area.width; ++x) {
            const unsigned long pixel = XGetPixel(seen, x, y);
            image.SetRGB(x, y, static_cast<unsigned char>(pixel >> 16U),
                         static_cast<unsigned char>(pixel >> 8U),
                         static_cast<unsigned char>(pixel));
        }
    }
    XDestroyImage(seen);
    return image;
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

bool StaysAbove(SystemWindow window) {
    return HasState(window, "_NET_WM_STATE_ABOVE");
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

std::string SpokenNameOf(wxWindow& control) {
    const char* const name = atk_object_get_name(gtk_widget_get_accessible(control.GetHandle()));
    return name == nullptr ? "" : name;
}

int LeftOfCharacter(const wxTextCtrl& box, long row, long column) {
    return box.PositionToCoords(box.XYToPosition(column, row)).x;
}

std::string TitleOfBox(SystemWindow box) {
    return gtk_window_get_title(GTK_WINDOW(Widget(box)));
}

std::string TextOfBox(SystemWindow box) {
    std::string text;
    ForEachWidget(gtk_message_dialog_get_message_area(GTK_MESSAGE_DIALOG(Widget(box))),
                  [&](GtkWidget* part) {
                      if (GTK_IS_LABEL(part) && gtk_widget_get_mapped(part) != FALSE) {
                          text += gtk_label_get_text(GTK_LABEL(part));
                      }
                  });
    return text;
}

std::vector<std::string> ButtonsOfBox(SystemWindow box) {
    std::vector<std::pair<int, std::string>> buttons;  // from left to right
    ForEachWidget(Widget(box), [&](GtkWidget* part) {
        // A button holds the label that it shows.
        if (GTK_IS_LABEL(part) && gtk_widget_get_ancestor(part, GTK_TYPE_BUTTON) != nullptr) {
            buttons.emplace_back(AreaOfWidget(part).x, gtk_label_get_text(GTK_LABEL(part)));
        }
    });
    std::sort(buttons.begin(), buttons.end());
    std::vector<std::string> texts;
    texts.reserve(buttons.size());
    for (const auto& [x, text] : buttons) {
        texts.push_back(text);
    }
    return texts;
}

wxRect IconAreaOfBox(SystemWindow box) {
    wxRect area;
    ForEachWidget(Widget(box), [&](GtkWidget* part) {
        if (GTK_IS_IMAGE(part) && gtk_widget_get_mapped(part) != FALSE &&
            gtk_widget_get_ancestor(part, GTK_TYPE_BUTTON) == nullptr) {
            area = AreaOfWidget(part);
        }
    });
    return area;
}

bool TellsItsKind(SystemWindow box, MessageIcon icon) {
    const char* const name = atk_object_get_name(gtk_widget_get_accessible(Widget(box)));
    const std::string kind = name == nullptr ? "" : name;
    switch (icon) {
        case MessageIcon::Information:
            return kind == "Information";
        case MessageIcon::Question:
            return kind == "Question";
        case MessageIcon::Exclamation:
            return kind == "Warning";
        case MessageIcon::Stop:
            return kind == "Error";
        default:
            return kind == TitleOfBox(box);
    }
}

wxImage StandardIcon(MessageIcon icon, const wxColour& ground) {
    int size = 0;
    gtk_icon_size_lookup(GTK_ICON_SIZE_DIALOG, &size, nullptr);
    GdkPixbuf* const loaded = gtk_icon_theme_load_icon(gtk_icon_theme_get_default(), IconName(icon),
                                                       size, GTK_ICON_LOOKUP_USE_BUILTIN, nullptr);
    const int width = gdk_pixbuf_get_width(loaded);
    const int height = gdk_pixbuf_get_height(loaded);
    wxImage image(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const guint8* const pixel = gdk_pixbuf_read_pixels(loaded) +
                                        std::ptrdiff_t{y} * gdk_pixbuf_get_rowstride(loaded) +
                                        std::ptrdiff_t{x} * gdk_pixbuf_get_n_channels(loaded);
            const unsigned alpha = gdk_pixbuf_get_has_alpha(loaded) != FALSE ? pixel[3] : 255U;
            image.SetRGB(x, y, Over(pixel[0], alpha, ground.Red()),
                         Over(pixel[1], alpha, ground.Green()),
                         Over(pixel[2], alpha, ground.Blue()));
        }
    }
    g_object_unref(loaded);
    return image;
}

void CloseBox(SystemWindow box) {
    gtk_dialog_response(GTK_DIALOG(Widget(box)), GTK_RESPONSE_CANCEL);
}

}  // namespace brelex
