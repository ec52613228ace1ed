// SPDX-License-Identifier: MIT
#include "platform/desktop/help_viewer_bus_gtk.h"

#include "base/app_info.h"

namespace brelex {

namespace {

constexpr char kActivationToken[] = "activation-token";
constexpr char kStartupId[] = "desktop-startup-id";  // what older desktops call it

}  // namespace

GDBusConnection* SessionBus() {
    return g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
}

bool HasHelpViewer(GDBusConnection* bus) {
    constexpr int kPatienceMs = 2000;
    GVariant* const answer = g_dbus_connection_call_sync(
        bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
        "NameHasOwner", g_variant_new("(s)", kHelpApplicationId), G_VARIANT_TYPE("(b)"),
        G_DBUS_CALL_FLAGS_NONE, kPatienceMs, nullptr, nullptr);
    gboolean has = FALSE;
    if (answer != nullptr) {
        g_variant_get(answer, "(b)", &has);
        g_variant_unref(answer);
    }
    return has != FALSE;
}

GVariant* PlatformData(const std::string& token) {
    GVariantBuilder data;
    g_variant_builder_init(&data, G_VARIANT_TYPE_VARDICT);
    if (!token.empty()) {
        for (const char* key : {kActivationToken, kStartupId}) {
            g_variant_builder_add(&data, "{sv}", key, g_variant_new_string(token.c_str()));
        }
    }
    return g_variant_builder_end(&data);
}

std::string TokenIn(GVariant* platformData) {
    const char* token = "";
    if (g_variant_lookup(platformData, kActivationToken, "&s", &token) == FALSE) {
        g_variant_lookup(platformData, kStartupId, "&s", &token);
    }
    return token;
}

void TellHelpViewer(GDBusConnection* bus, const char* method, GVariant* arguments) {
    g_dbus_connection_call(bus, kHelpApplicationId, kHelpObject, kApplicationInterface, method,
                           arguments, nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, nullptr,
                           nullptr, nullptr);
    g_dbus_connection_flush_sync(bus, nullptr, nullptr);
}

GVariant* ActionCall(const char* action, const char* argument) {
    GVariantBuilder parameters;
    g_variant_builder_init(&parameters, G_VARIANT_TYPE("av"));
    if (argument != nullptr) {
        g_variant_builder_add(&parameters, "v", g_variant_new_string(argument));
    }
    return g_variant_new("(sav@a{sv})", action, &parameters, PlatformData({}));
}

}  // namespace brelex
