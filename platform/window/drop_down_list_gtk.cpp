// SPDX-License-Identifier: MIT
#include "platform/window/drop_down_list.h"

#include <wx/combobox.h>

#include "platform/window/style_sheet_gtk.h"

namespace brelex {

void ShowItemsAsList(wxComboBox& combo) {
    AddStyle(*combo.GetHandle(), "combobox { -GtkComboBox-appears-as-list: 1; }");
}

}  // namespace brelex
