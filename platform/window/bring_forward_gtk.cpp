// SPDX-License-Identifier: MIT
#include "platform/window/bring_forward.h"

#include <keybinder.h>

#include <wx/frame.h>

#include <gtk/gtk.h>

#include "platform/window/activation_token_gtk.h"

namespace brelex {

void BringForward(wxFrame& window) {
    // Needed even if the toolkit says that the window is not minimized. The toolkit forgets this
    // when a window is hidden, and the window would come up minimized again (wxWidgets 3.2).
    window.Iconize(false);
    window.Show();
    HandTokenToToolkit();
    // With the time of a key press, window managers that prevent focus stealing accept the request.
    const guint32 keyTime = keybinder_get_current_event_time();
    gtk_window_present_with_time(GTK_WINDOW(window.GetHandle()),
                                 keyTime != 0 ? keyTime : gtk_get_current_event_time());
}

bool SystemShows(const wxFrame& window) {
    return window.IsShown() && !window.IsIconized();
}

}  // namespace brelex
