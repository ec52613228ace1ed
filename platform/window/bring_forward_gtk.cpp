// SPDX-License-Identifier: MIT
#include "platform/window/bring_forward.h"

#include <cstddef>
#include <keybinder.h>
#include <vector>

#include <wx/frame.h>

#include <gdk/gdkwayland.h>
#include <gtk/gtk.h>

#include "platform/window/activation_token_gtk.h"
#include "platform/window/paint_now.h"

namespace brelex {

namespace {

constexpr char kShownAt[] = "brelex-shown-at";

bool IsOnWayland() {
    return GDK_IS_WAYLAND_DISPLAY(gdk_display_get_default());
}

// The visible window that belongs directly to another; null if there is none.
GtkWidget* WindowOver(GtkWidget* window) {
    GtkWidget* found = nullptr;
    GList* const all = gtk_window_list_toplevels();
    for (const GList* node = all; node != nullptr; node = node->next) {
        auto* const other = static_cast<GtkWidget*>(node->data);
        if (GTK_IS_WINDOW(other) && gtk_widget_get_visible(other) != FALSE &&
            gtk_window_get_window_type(GTK_WINDOW(other)) == GTK_WINDOW_TOPLEVEL &&
            gtk_window_get_transient_for(GTK_WINDOW(other)) == GTK_WINDOW(window)) {
            found = other;
        }
    }
    g_list_free(all);
    return found;
}

// A window and the windows over it, from the bottom to the top.
std::vector<GtkWidget*> StackOn(GtkWidget* window) {
    std::vector<GtkWidget*> stack;
    for (; window != nullptr; window = WindowOver(window)) {
        stack.push_back(window);
    }
    return stack;
}

// The compositor's own word. The keyboard may be with a menu of the panel.
bool IsActive(GtkWidget* window) {
    GdkWindow* const inside = gtk_widget_get_window(window);
    return inside != nullptr && (gdk_window_get_state(inside) & GDK_WINDOW_STATE_FOCUSED) != 0;
}

bool IsAnyActive(const std::vector<GtkWidget*>& windows) {
    for (GtkWidget* const window : windows) {
        if (IsActive(window)) {
            return true;
        }
    }
    return false;
}

// Notes that a window has just been shown. Returns false if it already was: the compositor needs a
// moment to make it the active one.
bool NoteShown(GtkWidget* window) {
    constexpr gint64 kMoment = 100'000;  // microseconds
    const gint64 now = g_get_monotonic_time();
    auto* const last = static_cast<gint64*>(g_object_get_data(G_OBJECT(window), kShownAt));
    if (last != nullptr && now - *last < kMoment) {
        return false;
    }
    auto* const at = g_new(gint64, 1);
    *at = now;
    g_object_set_data_full(G_OBJECT(window), kShownAt, at, &g_free);
    return true;
}

// Hides a window and those over it, and shows them again. A dialog has to wait for the window under
// it, or it could come up below.
void ShowAnew(wxFrame& window, const std::vector<GtkWidget*>& stack) {
    for (std::size_t i = stack.size(); i > 0; --i) {
        gtk_widget_hide(stack[i - 1]);
    }
    gtk_widget_show(stack.front());
    if (stack.size() > 1) {
        PaintFirst(window);
    }
    for (GtkWidget* const each : stack) {
        gtk_widget_show(each);
    }
}

// Wayland lets a program bring a window to the front with a token, and show a new one. So without a
// token, the window becomes a new one.
void BringForwardOnWayland(wxFrame& window, bool wasHidden) {
    const std::vector<GtkWidget*> stack = StackOn(window.GetHandle());
    const bool isNew = (wasHidden || !IsAnyActive(stack)) && NoteShown(stack.front());
    if (HandTokenToToolkit()) {
        gtk_window_present(GTK_WINDOW(stack.back()));
    } else if (isNew && !wasHidden) {
        ShowAnew(window, stack);
    }
}

}  // namespace

void BringForward(wxFrame& window) {
    const bool wasHidden = !window.IsShown();
    // Needed even if the toolkit says that the window is not minimized. The toolkit forgets this
    // when a window is hidden, and the window would come up minimized again (wxWidgets 3.2).
    window.Iconize(false);
    window.Show();
    if (IsOnWayland()) {
        BringForwardOnWayland(window, wasHidden);
        return;
    }
    HandTokenToToolkit();
    // With the time of a key press, window managers that prevent focus stealing accept the request.
    const guint32 keyTime = keybinder_get_current_event_time();
    gtk_window_present_with_time(GTK_WINDOW(window.GetHandle()),
                                 keyTime != 0 ? keyTime : gtk_get_current_event_time());
}

bool SystemShows(const wxFrame& window) {
    return window.IsShown() && !window.IsIconized();
}

bool MayBeMinimized(const wxFrame& window) {
    return window.IsIconized() || (IsOnWayland() && !IsAnyActive(StackOn(window.GetHandle())));
}

bool CanStayOnTop() {
    return !IsOnWayland();
}

}  // namespace brelex
