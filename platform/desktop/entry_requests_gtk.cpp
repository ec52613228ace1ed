// SPDX-License-Identifier: MIT
#include "platform/desktop/entry_requests.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include "base/app_info.h"

namespace brelex {

namespace {

// The part of the interface that concerns us. The program opens no files.
constexpr char kDescription[] = R"xml(<node><interface name="org.freedesktop.Application">
  <method name="Activate"><arg type="a{sv}" direction="in"/></method>
  <method name="ActivateAction">
    <arg type="s" direction="in"/><arg type="av" direction="in"/><arg type="a{sv}" direction="in"/>
  </method>
</interface></node>)xml";

// The object of an application is called after its name on the bus.
std::string ObjectPath() {
    std::string path = std::string("/") + kApplicationId;
    std::replace(path.begin(), path.end(), '.', '/');
    return path;
}

// The permission to come forward, in what a desktop tells an application. Under X11 it is the ID of
// a start, which contains the time of the user's action.
std::string ActivationTokenIn(GVariant* platformData) {
    const bool isX11 = GDK_IS_X11_DISPLAY(gdk_display_get_default()) != FALSE;
    const char* token = nullptr;
    const char* const name = isX11 ? "desktop-startup-id" : "activation-token";
    return g_variant_lookup(platformData, name, "&s", &token) != FALSE ? token : "";
}

// The parameter of an action: a single text. False if it is anything else.
bool IsSingleText(GVariant* parameters, std::string& text) {
    if (g_variant_n_children(parameters) != 1) {
        return false;
    }
    GVariant* value = nullptr;
    g_variant_get_child(parameters, 0, "v", &value);
    const bool isText = g_variant_is_of_type(value, G_VARIANT_TYPE_STRING) != FALSE;
    if (isText) {
        text = g_variant_get_string(value, nullptr);
    }
    g_variant_unref(value);
    return isText;
}

}  // namespace

class EntryRequests::Listener {
  public:
    explicit Listener(EntryRequestEvents events)
        : events_(std::move(events)),
          name_(g_bus_own_name(G_BUS_TYPE_SESSION, kApplicationId,
                               G_BUS_NAME_OWNER_FLAGS_DO_NOT_QUEUE, &Listener::OnBus, nullptr,
                               nullptr, this, nullptr)) {}

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    ~Listener() {
        g_bus_unown_name(name_);
        if (connection_ != nullptr) {
            g_dbus_connection_unregister_object(connection_, object_);
            g_object_unref(connection_);
        }
    }

  private:
    // Before the program has its name, so that nobody meets the name without the object.
    static void OnBus(GDBusConnection* connection, const char* /*name*/, void* data) {
        auto* const self = static_cast<Listener*>(data);
        self->connection_ = G_DBUS_CONNECTION(g_object_ref(connection));
        GDBusNodeInfo* const node = g_dbus_node_info_new_for_xml(kDescription, nullptr);
        static const GDBusInterfaceVTable kHandlers = {&Listener::OnMethod, nullptr, nullptr, {}};
        self->object_ =
            g_dbus_connection_register_object(connection, ObjectPath().c_str(), node->interfaces[0],
                                              &kHandlers, self, nullptr, nullptr);
        g_dbus_node_info_unref(node);
    }

    static void OnMethod(GDBusConnection* /*connection*/, const char* /*sender*/,
                         const char* /*path*/, const char* /*interface*/, const char* method,
                         GVariant* parameters, GDBusMethodInvocation* call, void* data) {
        const auto* const self = static_cast<const Listener*>(data);
        GVariant* const platformData =
            g_variant_get_child_value(parameters, g_variant_n_children(parameters) - 1);
        const std::string token = ActivationTokenIn(platformData);
        g_variant_unref(platformData);
        if (std::string_view(method) == "Activate") {
            g_dbus_method_invocation_return_value(call, nullptr);
            self->events_.onShow("", token);
            return;
        }
        const char* action = nullptr;
        g_variant_get_child(parameters, 0, "&s", &action);
        const std::string_view name = action;
        GVariant* const texts = g_variant_get_child_value(parameters, 1);
        std::string id;
        const bool isText = IsSingleText(texts, id);
        g_variant_unref(texts);
        if (!isText || (name != "show-entry" && name != "copy-entry")) {
            g_dbus_method_invocation_return_error_literal(
                call, G_DBUS_ERROR, G_DBUS_ERROR_INVALID_ARGS, "There is no such action.");
            return;
        }
        g_dbus_method_invocation_return_value(call, nullptr);
        if (name == "show-entry") {
            self->events_.onShow(id, token);
        } else {
            self->events_.onCopy(id);
        }
    }

    const EntryRequestEvents events_;
    GDBusConnection* connection_ = nullptr;
    guint object_ = 0;
    guint name_;  // the last member, because the bus may answer as soon as it is asked for
};

EntryRequests::EntryRequests(const EntryRequestEvents& events)
    : listener_(std::make_unique<Listener>(events)) {}

EntryRequests::~EntryRequests() = default;

}  // namespace brelex
