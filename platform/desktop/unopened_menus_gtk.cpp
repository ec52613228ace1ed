// SPDX-License-Identifier: MIT
#include "platform/desktop/unopened_menus.h"

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
gboolean OnSelected(GSignalInvocationHint* /*hint*/, guint /*count*/, const GValue* item,
                    gpointer /*data*/) {
    GtkWidget* const menu = gtk_widget_get_parent(GTK_WIDGET(g_value_get_object(item)));
    if (GTK_IS_MENU(menu) && gtk_widget_get_mapped(menu) == FALSE) {
        g_idle_add_full(G_PRIORITY_HIGH, &CloseUnlessShown, g_object_ref(menu), &g_object_unref);
    }
    return TRUE;
}

}  // namespace

void LetGoOfUnopenedMenus() {
    static const gulong hook = [] {
        g_type_class_ref(GTK_TYPE_MENU_ITEM);  // otherwise the signal does not exist yet
        return g_signal_add_emission_hook(g_signal_lookup("select", GTK_TYPE_MENU_ITEM), 0,
                                          &OnSelected, nullptr, nullptr);
    }();
    static_cast<void>(hook);
}

}  // namespace brelex
