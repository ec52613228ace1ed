// SPDX-License-Identifier: MIT
#include "platform/window/bring_forward.h"

#include <keybinder.h>

#include <wx/frame.h>

#include <gtk/gtk.h>

namespace brelex {

void BringForward(wxFrame& window) {
    // Without asking whether it is minimised: hiding it makes the toolkit forget that it is, and it
    // would come up minimised again (wxWidgets 3.2).
    window.Iconize(false);
    window.Show();
    // The time of the key press, if there was one, gets past rules against stealing the focus.
    const guint32 keyTime = keybinder_get_current_event_time();
    gtk_window_present_with_time(GTK_WINDOW(window.GetHandle()),
                                 keyTime != 0 ? keyTime : gtk_get_current_event_time());
}

bool SystemShows(const wxFrame& window) {
    return window.IsShown() && !window.IsIconized();
}

}  // namespace brelex
