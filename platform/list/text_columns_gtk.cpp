// SPDX-License-Identifier: MIT
#include "platform/list/text_columns.h"

#include <wx/textctrl.h>

#include <gtk/gtk.h>

namespace brelex {

namespace {

GtkTextView* TextViewOf(wxTextCtrl& box) {
    // The box's own widget only scrolls the text view inside it.
    return GTK_TEXT_VIEW(gtk_bin_get_child(GTK_BIN(box.GetHandle())));
}

}  // namespace

void SetSideMargins(wxTextCtrl& box, int pixels) {
    gtk_text_view_set_left_margin(TextViewOf(box), pixels);
    gtk_text_view_set_right_margin(TextViewOf(box), pixels);
}

void SetTopMargin(wxTextCtrl& box, int pixels) {
    gtk_text_view_set_top_margin(TextViewOf(box), pixels);
}

// The library rounds the height of a line up; the toolkit's measures are rounded to the nearest.
int LineDistance(wxTextCtrl& box) {
    PangoLayout* const line = gtk_widget_create_pango_layout(GTK_WIDGET(TextViewOf(box)), "X");
    int height = 0;
    pango_layout_get_size(line, nullptr, &height);
    g_object_unref(line);
    return PANGO_PIXELS_CEIL(height);
}

// The toolkit assumes a wider frame than that of the theme. Scroll bars lie over the text.
int FrameWidth(wxTextCtrl& box) {
    GtkStyleContext* const style = gtk_widget_get_style_context(box.GetHandle());
    GtkBorder border{};
    gtk_style_context_get_border(style, gtk_style_context_get_state(style), &border);
    return border.top;
}

int SetTabStop(wxTextCtrl& box, int dialogUnits) {
    const int pixels = box.ConvertDialogToPixels(wxPoint(dialogUnits, 0)).x;
    PangoTabArray* const tabs = pango_tab_array_new_with_positions(1, TRUE, PANGO_TAB_LEFT, pixels);
    gtk_text_view_set_tabs(TextViewOf(box), tabs);
    pango_tab_array_free(tabs);
    return pixels;
}

}  // namespace brelex
