// SPDX-License-Identifier: MIT
#include "platform/window/accessible_name.h"

#include <wx/combobox.h>
#include <wx/dataview.h>
#include <wx/menuitem.h>

#include <gtk/gtk.h>

#include "platform/window/spoken_widget_gtk.h"

namespace brelex {

namespace {

AtkObject* SpokenObjectOf(wxWindow& window) {
    return gtk_widget_get_accessible(FocusableWidget(window));
}

}  // namespace

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

void SetSpokenName(wxWindow& window, const wxString& spokenName) {
    // The toolkit does not pass its name on to the accessibility layer (seen with 3.2.2).
    atk_object_set_name(SpokenObjectOf(window), spokenName.utf8_str());
    if (auto* const combo = dynamic_cast<wxComboBox*>(&window)) {
        atk_object_set_name(gtk_widget_get_accessible(combo->GetHandle()), spokenName.utf8_str());
    }
}

void SetSpokenDescription(wxWindow& window, const wxString& description) {
    AtkObject* const object = SpokenObjectOf(window);
    if (atk_object_get_description(object) == nullptr) {
        atk_object_set_description(object, "");  // only from one to another is it a change
    }
    atk_object_set_description(object, description.utf8_str());
}

void LeaveUnspoken(wxWindow& window) {
    atk_object_set_role(SpokenObjectOf(window), ATK_ROLE_REDUNDANT_OBJECT);
}

// Orca 43 does not know ATK's signal for this, and later ones would say the text a second time.
void Announce(wxWindow& /*window*/) {}

void SetSpokenName(wxMenuItem& item, const wxString& spokenName) {
    atk_object_set_name(gtk_widget_get_accessible(item.GetMenuItem()), spokenName.utf8_str());
}

}  // namespace brelex
