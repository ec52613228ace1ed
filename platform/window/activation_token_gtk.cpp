// SPDX-License-Identifier: MIT
#include "platform/window/activation_token.h"

#include <gdk/gdkwayland.h>
#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include "platform/window/activation_token_gtk.h"

namespace brelex {

namespace {

constexpr char kToken[] = "brelex-activation-token";

}  // namespace

// The token waits with us, because GTK would give it to any window that asks first.
void UseActivationToken(const std::string& token) {
    GdkDisplay* const display = gdk_display_get_default();
    if (display != nullptr && !token.empty()) {
        g_object_set_data_full(G_OBJECT(display), kToken, g_strdup(token.c_str()), &g_free);
    }
}

// Under X11 a token is the ID of a start. It may contain the time of the user's action.
bool HandTokenToToolkit() {
    GdkDisplay* const display = gdk_display_get_default();
    auto* const token = static_cast<char*>(g_object_steal_data(G_OBJECT(display), kToken));
    if (token == nullptr) {
        return false;
    }
    if (GDK_IS_WAYLAND_DISPLAY(display)) {
        gdk_wayland_display_set_startup_notification_id(display, token);
    } else if (GDK_IS_X11_DISPLAY(display)) {
        gdk_x11_display_set_startup_notification_id(display, token);
    }
    g_free(token);
    return true;
}

}  // namespace brelex
