// SPDX-License-Identifier: MIT
#include "platform/desktop/hot_key_portal.h"

#include <algorithm>
#include <gio/gio.h>
#include <utility>

#include "base/app_info.h"

namespace brelex {

namespace {

constexpr char kPortal[] = "org.freedesktop.portal.Desktop";
constexpr char kPortalPath[] = "/org/freedesktop/portal/desktop";
constexpr char kShortcuts[] = "org.freedesktop.portal.GlobalShortcuts";
constexpr char kRequest[] = "org.freedesktop.portal.Request";
constexpr char kSession[] = "org.freedesktop.portal.Session";
constexpr char kRegistry[] = "org.freedesktop.host.portal.Registry";

// Desktops remember the user's choice under this name.
constexpr char kShortcut[] = "bring-forward";
constexpr char kDescription[] = "Bring the Brevilexicon window forward";
constexpr char kSuggestedKey[] = "CTRL+SHIFT+g";

// Whether the object that made the call is gone. Otherwise, an error is no news worth telling:
// there is just no key.
bool IsCancelled(GObject* connection, GAsyncResult* result, bool& failed) {
    GError* error = nullptr;
    GVariant* const answer =
        g_dbus_connection_call_finish(G_DBUS_CONNECTION(connection), result, &error);
    const bool cancelled = g_error_matches(error, G_IO_ERROR, G_IO_ERROR_CANCELLED) != FALSE;
    g_clear_error(&error);
    failed = answer == nullptr;
    if (answer != nullptr) {
        g_variant_unref(answer);
    }
    return cancelled;
}

// The text of an entry of a dictionary; empty if it has none. Portals give the path of a session as
// text, although the documentation calls it a path.
std::string TextIn(GVariant* dictionary, const char* key) {
    GVariant* const value = g_variant_lookup_value(dictionary, key, nullptr);
    if (value == nullptr) {
        return {};
    }
    const bool isText = g_variant_is_of_type(value, G_VARIANT_TYPE_STRING) != FALSE ||
                        g_variant_is_of_type(value, G_VARIANT_TYPE_OBJECT_PATH) != FALSE;
    std::string text = isText ? g_variant_get_string(value, nullptr) : "";
    g_variant_unref(value);
    return text;
}

}  // namespace

class PortalHotKey::Client {
  public:
    // Starts the portal if nothing has started it yet.
    explicit Client(std::function<void(const std::string& token)> onPress)
        : onPress_(std::move(onPress)),
          watch_(g_bus_watch_name(G_BUS_TYPE_SESSION, kPortal, G_BUS_NAME_WATCHER_FLAGS_AUTO_START,
                                  &Client::OnAppeared, &Client::OnVanished, this, nullptr)) {}

    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    ~Client() {
        g_bus_unwatch_name(watch_);
        GiveBack();
    }

  private:
    // What the portal is to do next. It answers each request by a signal, which may come long
    // after, because it may have asked the user.
    enum class Step {
        Create,
        Bind
    };

    static void OnAppeared(GDBusConnection* connection, const char* /*name*/, const char* /*owner*/,
                           void* data) {
        static_cast<Client*>(data)->Begin(connection);
    }

    static void OnVanished(GDBusConnection* /*connection*/, const char* /*name*/, void* data) {
        static_cast<Client*>(data)->Forget();
    }

    // A portal that comes back knows nothing of the key.
    void Begin(GDBusConnection* connection) {
        Forget();
        if (isRefused_) {
            return;
        }
        connection_ = G_DBUS_CONNECTION(g_object_ref(connection));
        cancel_ = g_cancellable_new();
        // Newer portals serve only programs that have said who they are. Older ones do not know
        // this call, or find out by themselves.
        Call(kPortalPath, kRegistry, "Register",
             g_variant_new_parsed("(%s, @a{sv} {})", kApplicationId), &Client::OnRegistered);
    }

    // Drops everything that belongs to this portal, which is gone or not wanted.
    void Forget() {
        if (connection_ == nullptr) {
            return;
        }
        g_cancellable_cancel(cancel_);
        g_clear_object(&cancel_);
        Unsubscribe(response_);
        Unsubscribe(presses_);
        Unsubscribe(closing_);
        session_.clear();
        g_clear_object(&connection_);
    }

    // Lets the portal take the key back, too.
    void GiveBack() {
        if (!session_.empty()) {
            Call(session_.c_str(), kSession, "Close", nullptr, nullptr);
            // Nobody else may hold the connection, and without it the call would stay here.
            g_dbus_connection_flush(connection_, nullptr, nullptr, nullptr);
        }
        Forget();
    }

    // Never starts a portal that has just ended, perhaps because of us.
    void Call(const char* path, const char* interface, const char* method, GVariant* arguments,
              GAsyncReadyCallback onAnswer) {
        g_dbus_connection_call(connection_, kPortal, path, interface, method, arguments, nullptr,
                               G_DBUS_CALL_FLAGS_NO_AUTO_START, -1,
                               onAnswer != nullptr ? cancel_ : nullptr, onAnswer, this);
    }

    [[nodiscard]] guint Subscribe(const char* interface, const char* signal, const char* path,
                                  GDBusSignalCallback onSignal) {
        return g_dbus_connection_signal_subscribe(connection_, kPortal, interface, signal, path,
                                                  nullptr, G_DBUS_SIGNAL_FLAGS_NONE, onSignal, this,
                                                  nullptr);
    }

    void Unsubscribe(guint& subscription) {
        if (subscription != 0) {
            g_dbus_connection_signal_unsubscribe(connection_, subscription);
            subscription = 0;
        }
    }

    static void OnRegistered(GObject* connection, GAsyncResult* result, void* data) {
        bool failed = false;
        if (!IsCancelled(connection, result, failed)) {
            static_cast<Client*>(data)->CreateSession();
        }
    }

    void CreateSession() {
        const std::string token = AwaitResponse(Step::Create);
        Call(kPortalPath, kShortcuts, "CreateSession",
             g_variant_new_parsed("({'handle_token': <%s>, 'session_handle_token': <%s>},)",
                                  token.c_str(), token.c_str()),
             &Client::OnRequested);
    }

    void BindKey() {
        const std::string token = AwaitResponse(Step::Bind);
        Call(kPortalPath, kShortcuts, "BindShortcuts",
             g_variant_new_parsed("(%o, [(%s, {'description': <%s>, 'preferred_trigger': <%s>})],"
                                  " '', {'handle_token': <%s>})",
                                  session_.c_str(), kShortcut, kDescription, kSuggestedKey,
                                  token.c_str()),
             &Client::OnRequested);
    }

    // Returns a name for the next request. The portal makes the request's path from it, so that we
    // can listen before the request is there and could be answered.
    std::string AwaitResponse(Step step) {
        step_ = step;
        std::string token = "brevilexicon" + std::to_string(++requests_);
        std::string sender = g_dbus_connection_get_unique_name(connection_);
        sender.erase(0, 1);  // a colon
        std::replace(sender.begin(), sender.end(), '.', '_');
        response_ =
            Subscribe(kRequest, "Response",
                      (std::string(kPortalPath) + "/request/" + sender + "/" + token).c_str(),
                      &Client::OnResponse);
        return token;
    }

    static void OnRequested(GObject* connection, GAsyncResult* result, void* data) {
        bool failed = false;
        if (!IsCancelled(connection, result, failed) && failed) {
            static_cast<Client*>(data)->GiveBack();
        }
    }

    static void OnResponse(GDBusConnection* /*connection*/, const char* /*sender*/,
                           const char* /*path*/, const char* /*interface*/, const char* /*signal*/,
                           GVariant* parameters, void* data) {
        guint32 response = 2;  // it has failed
        GVariant* results = nullptr;
        if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(ua{sv})")) != FALSE) {
            g_variant_get(parameters, "(u@a{sv})", &response, &results);
        }
        static_cast<Client*>(data)->OnResponse(response, results);
        if (results != nullptr) {
            g_variant_unref(results);
        }
    }

    void OnResponse(guint32 response, GVariant* results) {
        Unsubscribe(response_);
        if (response != 0) {
            isRefused_ = response == 1;  // by the user, who is not asked again
            GiveBack();
        } else if (step_ == Step::Create) {
            Use(TextIn(results, "session_handle"));
        }
    }

    void Use(const std::string& session) {
        if (g_variant_is_object_path(session.c_str()) == FALSE) {
            Forget();
            return;
        }
        session_ = session;
        closing_ = Subscribe(kSession, "Closed", session.c_str(), &Client::OnClosed);
        presses_ = Subscribe(kShortcuts, "Activated", kPortalPath, &Client::OnActivated);
        BindKey();
    }

    static void OnClosed(GDBusConnection* /*connection*/, const char* /*sender*/,
                         const char* /*path*/, const char* /*interface*/, const char* /*signal*/,
                         GVariant* /*parameters*/, void* data) {
        static_cast<Client*>(data)->Forget();
    }

    static void OnActivated(GDBusConnection* /*connection*/, const char* /*sender*/,
                            const char* /*path*/, const char* /*interface*/, const char* /*signal*/,
                            GVariant* parameters, void* data) {
        if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(osta{sv})")) == FALSE) {
            return;
        }
        const char* session = nullptr;
        const char* shortcut = nullptr;
        GVariant* options = nullptr;
        g_variant_get(parameters, "(&o&st@a{sv})", &session, &shortcut, nullptr, &options);
        const auto* const self = static_cast<const Client*>(data);
        const bool isOurs = self->session_ == session && std::string(kShortcut) == shortcut;
        const std::string token = TextIn(options, "activation_token");
        g_variant_unref(options);
        if (isOurs) {
            self->onPress_(token);
        }
    }

    const std::function<void(const std::string& token)> onPress_;
    bool isRefused_ = false;
    int requests_ = 0;
    Step step_ = Step::Create;
    std::string session_;  // its path; empty if there is none
    GDBusConnection* connection_ = nullptr;
    GCancellable* cancel_ = nullptr;
    guint response_ = 0;
    guint presses_ = 0;
    guint closing_ = 0;
    guint watch_;  // the last member, because the bus may answer as soon as it is set
};

PortalHotKey::PortalHotKey(std::function<void(const std::string& token)> onPress)
    : client_(std::make_unique<Client>(std::move(onPress))) {}

PortalHotKey::~PortalHotKey() = default;

}  // namespace brelex
