// SPDX-License-Identifier: MIT
#include "platform/accessible_name.h"

#include <wx/dataview.h>
#include <wx/window.h>

#include <gtk/gtk.h>

namespace brelex {

void SetNames(wxWindow& window, const wxString& name, const wxString& spokenName) {
    window.SetName(name);
    // The toolkit does not pass its name on to the accessibility layer (seen with 3.2.2).
    auto* dataView = dynamic_cast<wxDataViewCtrl*>(&window);
    GtkWidget* widget =
        dataView != nullptr ? dataView->GtkGetTreeView() : GTK_WIDGET(window.GetHandle());
    atk_object_set_name(gtk_widget_get_accessible(widget), spokenName.utf8_str());
}

}  // namespace brelex
