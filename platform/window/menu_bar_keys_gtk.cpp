// SPDX-License-Identifier: MIT
#include "platform/window/menu_bar_keys.h"

#include <cstddef>

#include <wx/menu.h>

#include <gtk/gtk.h>

namespace brelex {

namespace {

// The menu itself holds the keyboard then, but it is nowhere to be seen, and drops each key.
gboolean CloseUnlessShown(gpointer menu) {
    if (gtk_widget_get_mapped(GTK_WIDGET(menu)) == FALSE) {
        gtk_menu_shell_deactivate(GTK_MENU_SHELL(menu));
    }
    return G_SOURCE_REMOVE;
}

// GTK selects the first item of a menu right after opening it, whether or not it could.
void OnSelected(GtkWidget* item, gpointer /*data*/) {
    GtkWidget* const menu = gtk_widget_get_parent(item);
    if (menu != nullptr && gtk_widget_get_mapped(menu) == FALSE) {
        g_idle_add_full(G_PRIORITY_HIGH, &CloseUnlessShown, g_object_ref(menu), &g_object_unref);
    }
}

}  // namespace

void LetGoOfUnopenedMenus(wxMenuBar& bar) {
    for (std::size_t i = 0; i < bar.GetMenuCount(); ++i) {
        for (wxMenuItem* const item : bar.GetMenu(i)->GetMenuItems()) {
            g_signal_connect(item->GetMenuItem(), "select", G_CALLBACK(&OnSelected), nullptr);
        }
    }
}

}  // namespace brelex
