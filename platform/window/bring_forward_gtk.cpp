// SPDX-License-Identifier: MIT
#include "platform/window/bring_forward.h"

#include <keybinder.h>

#include <wx/frame.h>

#include <gtk/gtk.h>

namespace brelex {

void BringForward(wxFrame& window) {
    // Even if the toolkit does not say that it is minimized: it forgets that when a window is
    // hidden, and the window would come up minimized again (wxWidgets 3.2).
    window.Iconize(false);
    window.Show();
    // The time of a key press satisfies window managers that prevent focus stealing.
    const guint32 keyTime = keybinder_get_current_event_time();
    gtk_window_present_with_time(GTK_WINDOW(window.GetHandle()),
                                 keyTime != 0 ? keyTime : gtk_get_current_event_time());
}

bool SystemShows(const wxFrame& window) {
    return window.IsShown() && !window.IsIconized();
}

}  // namespace brelex
