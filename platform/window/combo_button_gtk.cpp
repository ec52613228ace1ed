// SPDX-License-Identifier: MIT
#include "platform/window/combo_button.h"

#include <wx/combobox.h>

#include <gtk/gtk.h>

namespace brelex {

namespace {

void KeepOff(GtkWidget* widget, gpointer /*data*/) {
    if (GTK_IS_TOGGLE_BUTTON(widget)) {
        gtk_widget_set_can_focus(widget, FALSE);
    } else if (GTK_IS_CONTAINER(widget)) {
        gtk_container_forall(GTK_CONTAINER(widget), &KeepOff, nullptr);
    }
}

}  // namespace

void KeepFocusOffButton(wxComboBox& combo) {
    KeepOff(combo.GetHandle(), nullptr);
}

}  // namespace brelex
