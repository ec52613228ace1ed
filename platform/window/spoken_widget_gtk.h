// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

class wxWindow;

namespace brelex {

/// The widget of a window that gets the focus. The toolkit puts lists and multi-line texts into a
/// scrolled window, and the text of a combo box into the box.
[[nodiscard]] GtkWidget* FocusableWidget(wxWindow& window);

}  // namespace brelex
