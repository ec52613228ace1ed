// SPDX-License-Identifier: MIT
#include "platform/window/area_tool_tip.h"

#include <string>

#include <wx/window.h>

#include <gtk/gtk.h>

namespace brelex {

namespace {

constexpr char kTipKey[] = "brelex-area-tool-tip";

struct AreaTip {
    GdkRectangle area;
    std::string text;
};

gboolean OnQuery(GtkWidget* widget, gint x, gint y, gboolean keyboard, GtkTooltip* tooltip,
                 gpointer /*data*/) {
    const auto* const tip =
        static_cast<const AreaTip*>(g_object_get_data(G_OBJECT(widget), kTipKey));
    const GdkRectangle mouse = {x, y, 1, 1};
    if (keyboard != FALSE || tip == nullptr || tip->text.empty() ||
        gdk_rectangle_intersect(&tip->area, &mouse, nullptr) == FALSE) {
        return FALSE;
    }
    gtk_tooltip_set_text(tooltip, tip->text.c_str());
    gtk_tooltip_set_tip_area(tooltip, &tip->area);
    return TRUE;
}

}  // namespace

// The toolkit's tooltips belong to whole windows, so a new text would appear in the old place.
void SetAreaToolTip(wxWindow& window, const wxRect& area, const wxString& text) {
    GtkWidget* const widget = window.GetHandle();
    if (g_object_get_data(G_OBJECT(widget), kTipKey) == nullptr) {
        g_signal_connect(widget, "query-tooltip", G_CALLBACK(OnQuery), nullptr);
        gtk_widget_set_has_tooltip(widget, TRUE);
    }
    auto* const tip = new AreaTip{{area.x, area.y, area.width, area.height}, text.utf8_string()};
    g_object_set_data_full(G_OBJECT(widget), kTipKey, tip,
                           [](gpointer old) { delete static_cast<AreaTip*>(old); });
    gtk_widget_trigger_tooltip_query(widget);
}

}  // namespace brelex
