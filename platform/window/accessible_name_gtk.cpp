// SPDX-License-Identifier: MIT
#include "platform/window/accessible_name.h"

#include <wx/dataview.h>

#include <gtk/gtk.h>

namespace brelex {

namespace {

// Finds the widget that gets the focus. The toolkit puts lists and multi-line texts into a scrolled
// window, and the text of a combo box into the box.
GtkWidget* FocusableWidget(wxWindow& window) {
    if (auto* dataView = dynamic_cast<wxDataViewCtrl*>(&window)) {
        return dataView->GtkGetTreeView();
    }
    auto* const widget = GTK_WIDGET(window.GetHandle());
    const bool holdsAnother =
        GTK_IS_SCROLLED_WINDOW(widget) ||
        (GTK_IS_COMBO_BOX(widget) && gtk_combo_box_get_has_entry(GTK_COMBO_BOX(widget)) != FALSE);
    GtkWidget* const child = holdsAnother ? gtk_bin_get_child(GTK_BIN(widget)) : nullptr;
    return child != nullptr ? child : widget;
}

}  // namespace

void SetSpokenName(wxWindow& window, const wxString& spokenName) {
    // The toolkit does not pass its name on to the accessibility layer (seen with 3.2.2).
    atk_object_set_name(gtk_widget_get_accessible(FocusableWidget(window)), spokenName.utf8_str());
}

}  // namespace brelex
