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
    const bool hasToken = HandTokenToToolkit();
    if (hasToken) {
        gtk_window_present(GTK_WINDOW(stack.back()));
    }
    if (wasHidden) {
        NoteShown(stack.front());
    } else if (!hasToken && !IsAnyActive(stack) && NoteShown(stack.front())) {
        ShowAnew(window, stack);
    }
}

// A window, null once it is destroyed, and what to do when its button is pressed.
struct MinimizeButton {
    GtkWidget* window;
    std::function<void()> act;
};

bool HasClass(GtkWidget* widget, const char* name) {
    return gtk_style_context_has_class(gtk_widget_get_style_context(widget), name) != FALSE;
}

gboolean OnClicked(GSignalInvocationHint* /*hint*/, guint /*count*/, const GValue* values,
                   gpointer data) {
    const auto& wanted = *static_cast<MinimizeButton*>(data);
    auto* const button = static_cast<GtkWidget*>(g_value_get_object(values));
    if (wanted.window != nullptr && gtk_widget_get_toplevel(button) == wanted.window &&
        HasClass(button, "titlebutton") && HasClass(button, "minimize")) {
        wanted.act();
    }
    return wanted.window != nullptr ? TRUE : FALSE;
}

void ForgetButton(gpointer data) {
    auto* const button = static_cast<MinimizeButton*>(data);
    if (button->window != nullptr) {
        g_object_remove_weak_pointer(G_OBJECT(button->window),
                                     reinterpret_cast<gpointer*>(&button->window));
    }
    delete button;
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

void BringOpenedForward(wxFrame& window) {
    const std::vector<GtkWidget*> stack = StackOn(window.GetHandle());
    if (IsOnWayland() && stack.size() > 1 && HandTokenToToolkit()) {
        gtk_window_present(GTK_WINDOW(stack.back()));
    }
}

bool SystemShows(const wxFrame& window) {
    return window.IsShown() && !window.IsIconized();
}

bool MayBeMinimized(const wxFrame& window) {
    return window.IsIconized() || (IsOnWayland() && !IsAnyActive(StackOn(window.GetHandle())));
}

// GTK makes the button anew at times, so this watches all buttons.
void OnMinimizeButton(wxFrame& window, const std::function<void()>& act) {
    if (!IsOnWayland()) {
        return;
    }
    auto* const button = new MinimizeButton{window.GetHandle(), act};
    g_object_add_weak_pointer(G_OBJECT(button->window),
                              reinterpret_cast<gpointer*>(&button->window));
    g_type_class_ref(GTK_TYPE_BUTTON);  // otherwise the signal does not exist yet
    g_signal_add_emission_hook(g_signal_lookup("clicked", GTK_TYPE_BUTTON), 0, &OnClicked, button,
                               &ForgetButton);
}

bool CanStayOnTop() {
    return !IsOnWayland();
}

}  // namespace brelex
