// SPDX-License-Identifier: MIT
#include "tests/platform/system_box.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include <wx/colour.h>

#include <gtk/gtk.h>

namespace brelex {

namespace {

GtkWidget* Widget(SystemWindow window) {
    return static_cast<GtkWidget*>(window);
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

SystemWindow OpenMessageBox() {
    GList* const windows = gtk_window_list_toplevels();
    SystemWindow found = nullptr;
    for (GList* at = windows; at != nullptr; at = at->next) {
        auto* const widget = GTK_WIDGET(at->data);
        if (GTK_IS_MESSAGE_DIALOG(widget) != FALSE && gtk_widget_get_mapped(widget) != FALSE) {
            found = widget;
        }
    }
    g_list_free(windows);
    return found;
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
