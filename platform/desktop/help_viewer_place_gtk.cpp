// SPDX-License-Identifier: MIT
#include "platform/desktop/help_viewer_place.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

#include <wx/app.h>
#include <wx/toplevel.h>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include "base/app_info.h"
#include "platform/desktop/help_viewer_bus_gtk.h"

namespace brelex {

namespace {

constexpr char kDescription[] = R"xml(<node><interface name="org.freedesktop.Application">
  <method name="Activate"><arg type="a{sv}" direction="in"/></method>
  <method name="Open"><arg type="as" direction="in"/><arg type="a{sv}" direction="in"/></method>
  <method name="ActivateAction"><arg type="s" direction="in"/><arg type="av" direction="in"/>
    <arg type="a{sv}" direction="in"/></method>
</interface></node>)xml";

constexpr int kPatienceMs = 2000;

std::string Environment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::string UriOf(const std::string& path) {
    char* const uri = g_filename_to_uri(std::filesystem::absolute(path).c_str(), nullptr, nullptr);
    std::string text = uri == nullptr ? "" : uri;
    g_free(uri);
    return text;
}

// Whether a list of addresses has only the file with a path, whatever it is called there.
bool IsOnlyFile(GVariant* uris, const std::string& path) {
    if (g_variant_n_children(uris) != 1) {
        return false;
    }
    const char* uri = nullptr;
    g_variant_get_child(uris, 0, "&s", &uri);
    char* const named = g_filename_from_uri(uri, nullptr, nullptr);
    std::error_code error;
    const bool isSame = named != nullptr && std::filesystem::equivalent(named, path, error);
    g_free(named);
    return isSame;
}

}  // namespace

class HelpViewerPlace::Service {
  public:
    Service() : token_(Environment("XDG_ACTIVATION_TOKEN")) {
        if (token_.empty()) {
            token_ = Environment("DESKTOP_STARTUP_ID");
        }
    }

    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    ~Service() {
        Leave();
        g_clear_object(&bus_);
    }

    // The object comes first, because a call may follow the name at once.
    bool Take(const std::string& book) {
        book_ = book;
        bus_ = SessionBus();
        if (bus_ == nullptr) {
            return true;
        }
        g_dbus_connection_set_exit_on_close(bus_, FALSE);  // the viewer can do without
        GDBusNodeInfo* const node = g_dbus_node_info_new_for_xml(kDescription, nullptr);
        static const GDBusInterfaceVTable kHandlers = {&Service::OnMethod, nullptr, nullptr, {}};
        object_ = g_dbus_connection_register_object(bus_, kHelpObject, node->interfaces[0],
                                                    &kHandlers, this, nullptr, nullptr);
        g_dbus_node_info_unref(node);
        hasName_ = RequestName();
        return hasName_;
    }

    bool ShowInOther(const std::string& book, const std::string& page) {
        GVariantBuilder uris;
        g_variant_builder_init(&uris, G_VARIANT_TYPE_STRING_ARRAY);
        g_variant_builder_add(&uris, "s", UriOf(book).c_str());
        GVariant* const answer = g_dbus_connection_call_sync(
            bus_, kHelpApplicationId, kHelpObject, kApplicationInterface, "Open",
            g_variant_new("(as@a{sv})", &uris, PlatformData(token_)), nullptr,
            G_DBUS_CALL_FLAGS_NO_AUTO_START, kPatienceMs, nullptr, nullptr);
        if (answer == nullptr) {
            return false;
        }
        g_variant_unref(answer);
        if (!page.empty()) {
            TellHelpViewer(bus_, "ActivateAction", ActionCall(kShowPage, page.c_str()));
        }
        // The panel need not wait for a window of this program.
        if (GDK_IS_X11_DISPLAY(gdk_display_get_default())) {
            gdk_notify_startup_complete();
        }
        return true;
    }

    void Serve(wxTopLevelWindow& window, HelpRequests requests) {
        window_ = &window;
        requests_ = std::move(requests);
        window.Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
            Leave();
            event.Skip();
        });
    }

  private:
    [[nodiscard]] bool RequestName() const {
        constexpr guint kDoNotQueue = 4;
        constexpr guint kExists = 3;
        GVariant* const answer = g_dbus_connection_call_sync(
            bus_, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
            "RequestName", g_variant_new("(su)", kHelpApplicationId, kDoNotQueue),
            G_VARIANT_TYPE("(u)"), G_DBUS_CALL_FLAGS_NONE, kPatienceMs, nullptr, nullptr);
        guint result = 0;
        if (answer != nullptr) {
            g_variant_get(answer, "(u)", &result);
            g_variant_unref(answer);
        }
        return result != kExists;
    }

    // From now on, another viewer may take the place.
    void Leave() {
        window_ = nullptr;
        if (object_ != 0) {
            g_dbus_connection_unregister_object(bus_, std::exchange(object_, 0));
        }
        if (std::exchange(hasName_, false)) {
            g_dbus_connection_call(bus_, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                                   "org.freedesktop.DBus", "ReleaseName",
                                   g_variant_new("(s)", kHelpApplicationId), nullptr,
                                   G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr, nullptr);
            g_dbus_connection_flush_sync(bus_, nullptr, nullptr);
        }
    }

    static void OnMethod(GDBusConnection* /*connection*/, const char* /*sender*/,
                         const char* /*path*/, const char* /*interface*/, const char* method,
                         GVariant* arguments, GDBusMethodInvocation* call, void* data) {
        auto* const self = static_cast<Service*>(data);
        if (!self->CanDo(method, arguments)) {
            g_dbus_method_invocation_return_error_literal(call, G_DBUS_ERROR, G_DBUS_ERROR_FAILED,
                                                          "This viewer does not do that.");
            return;
        }
        g_dbus_method_invocation_return_value(call, nullptr);
        if (g_strcmp0(method, "ActivateAction") == 0) {
            self->DoAction(arguments);
        } else {
            GVariant* const platformData =
                g_variant_get_child_value(arguments, g_variant_n_children(arguments) - 1);
            self->requests_.comeForward(TokenIn(platformData));
            g_variant_unref(platformData);
        }
    }

    // There is no window yet while a message says that the book cannot be opened.
    bool CanDo(const std::string& method, GVariant* arguments) const {
        if (window_ == nullptr || method != "Open") {
            return window_ != nullptr;
        }
        GVariant* const uris = g_variant_get_child_value(arguments, 0);
        const bool isOurs = IsOnlyFile(uris, book_);
        g_variant_unref(uris);
        return isOurs;
    }

    void DoAction(GVariant* arguments) {
        const char* action = nullptr;
        GVariant* parameters = nullptr;
        g_variant_get(arguments, "(&s@ava{sv})", &action, &parameters, nullptr);
        if (g_strcmp0(action, kQuit) == 0) {
            window_->Close();
            wxWakeUpIdle();  // this destroys the window even outside an event of the toolkit
        } else if (g_strcmp0(action, kShowPage) == 0 && g_variant_n_children(parameters) == 1) {
            GVariant* page = nullptr;
            g_variant_get_child(parameters, 0, "v", &page);
            if (g_variant_is_of_type(page, G_VARIANT_TYPE_STRING) != FALSE) {
                requests_.turnTo(g_variant_get_string(page, nullptr));
            }
            g_variant_unref(page);
        }
        g_variant_unref(parameters);
    }

    std::string token_;  // of this program's own start
    std::string book_;
    GDBusConnection* bus_ = nullptr;
    guint object_ = 0;
    bool hasName_ = false;
    wxTopLevelWindow* window_ = nullptr;
    HelpRequests requests_;
};

HelpViewerPlace::HelpViewerPlace() : service_(std::make_unique<Service>()) {}

HelpViewerPlace::~HelpViewerPlace() = default;

bool HelpViewerPlace::Take(const std::string& book) {
    return service_->Take(book);
}

bool HelpViewerPlace::ShowInOther(const std::string& book, const std::string& page) {
    return service_->ShowInOther(book, page);
}

void HelpViewerPlace::Serve(wxTopLevelWindow& window, HelpRequests requests) {
    service_->Serve(window, std::move(requests));
}

}  // namespace brelex
