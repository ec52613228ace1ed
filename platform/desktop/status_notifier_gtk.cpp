// SPDX-License-Identifier: MIT
#include "platform/desktop/status_notifier.h"

#include <cstddef>
#include <filesystem>
#include <libdbusmenu-glib/menuitem.h>
#include <libdbusmenu-glib/server.h>
#include <utility>
#include <vector>

#include <wx/icon.h>

#include <gtk/gtk.h>

#include "base/app_info.h"

namespace brelex {

namespace {

constexpr char kWatcher[] = "org.kde.StatusNotifierWatcher";
constexpr char kWatcherPath[] = "/StatusNotifierWatcher";
constexpr char kItemPath[] = "/StatusNotifierItem";
constexpr char kMenuPath[] = "/MenuBar";
constexpr char kCommandKey[] = "brelex-command";

// The part of the item's interface that hosts use.
constexpr char kDescription[] = R"xml(<node><interface name="org.kde.StatusNotifierItem">
  <property name="Category" type="s" access="read"/>
  <property name="Id" type="s" access="read"/>
  <property name="Title" type="s" access="read"/>
  <property name="Status" type="s" access="read"/>
  <property name="IconName" type="s" access="read"/>
  <property name="IconThemePath" type="s" access="read"/>
  <property name="IconPixmap" type="a(iiay)" access="read"/>
  <property name="ToolTip" type="(sa(iiay)ss)" access="read"/>
  <property name="ItemIsMenu" type="b" access="read"/>
  <property name="Menu" type="o" access="read"/>
  <method name="Activate"><arg type="i" direction="in"/><arg type="i" direction="in"/></method>
  <method name="ProvideXdgActivationToken"><arg type="s" direction="in"/></method>
  <method name="SecondaryActivate"><arg type="i" direction="in"/><arg type="i" direction="in"/></method>
  <method name="ContextMenu"><arg type="i" direction="in"/><arg type="i" direction="in"/></method>
  <method name="Scroll"><arg type="i" direction="in"/><arg type="s" direction="in"/></method>
</interface></node>)xml";

// Converts a picture to the format of the bus: width, height, and ARGB in network byte order, row
// by row.
GVariant* PixmapOf(GdkPixbuf* picture) {
    const int width = gdk_pixbuf_get_width(picture);
    const int height = gdk_pixbuf_get_height(picture);
    const auto stride = static_cast<std::ptrdiff_t>(gdk_pixbuf_get_rowstride(picture));
    const auto channels = static_cast<std::ptrdiff_t>(gdk_pixbuf_get_n_channels(picture));
    const guchar* const pixels = gdk_pixbuf_read_pixels(picture);
    GVariantBuilder bytes;
    g_variant_builder_init(&bytes, G_VARIANT_TYPE("ay"));
    for (int y = 0; y < height; ++y) {
        const guchar* pixel = pixels + y * stride;
        for (int x = 0; x < width; ++x, pixel += channels) {
            constexpr int kAlpha = 3;
            constexpr guchar kOpaque = 255;
            g_variant_builder_add(&bytes, "y", channels > kAlpha ? pixel[kAlpha] : kOpaque);
            for (int colour = 0; colour < kAlpha; ++colour) {
                g_variant_builder_add(&bytes, "y", pixel[colour]);
            }
        }
    }
    return g_variant_new("(iiay)", width, height, &bytes);
}

// The icon in one color, which hosts draw in the color of their texts.
struct ThemedIcon {
    std::string name;
    std::string folder;  // of icon themes; the host may know others than this program
};

// Both texts are empty if no theme has the icon. Then hosts show the picture that we supply.
ThemedIcon SymbolicIcon() {
    std::string name = std::string(kApplicationId) + "-symbolic";
    constexpr int kSize = 16;
    GtkIconInfo* const icon = gtk_icon_theme_lookup_icon(gtk_icon_theme_get_default(), name.c_str(),
                                                         kSize, static_cast<GtkIconLookupFlags>(0));
    if (icon == nullptr) {
        return {};
    }
    const char* const file = gtk_icon_info_get_filename(icon);
    // THEMES/THEME/SIZE/apps/NAME
    std::string folder = std::filesystem::path(file == nullptr ? "" : file)
                             .parent_path()
                             .parent_path()
                             .parent_path()
                             .parent_path()
                             .string();
    g_object_unref(icon);
    return {std::move(name), std::move(folder)};
}

}  // namespace

std::string MenuLabel(const std::string& caption) {
    std::string text;
    for (const char c : caption) {
        if (c == '_') {
            text += '_';
        }
        text += c == '&' ? '_' : c;
    }
    return text;
}

void TieToCommand(void* item, Command command) {
    g_object_set_data(G_OBJECT(item), kCommandKey, GINT_TO_POINTER(static_cast<int>(command)));
}

Command TiedCommand(void* item) {
    return static_cast<Command>(GPOINTER_TO_INT(g_object_get_data(G_OBJECT(item), kCommandKey)));
}

class StatusNotifier::Item {
  public:
    Item(const wxIconBundle& pictures, std::string tip, const TrayEvents& events,
         std::function<void()> onHostChanged)
        : pictures_(pictures),
          tip_(std::move(tip)),
          events_(events),
          onHostChanged_(std::move(onHostChanged)),
          watch_(g_bus_watch_name(G_BUS_TYPE_SESSION, kWatcher, G_BUS_NAME_WATCHER_FLAGS_NONE,
                                  &Item::OnWatcherAppeared, &Item::OnWatcherVanished, this,
                                  nullptr)) {}

    Item(const Item&) = delete;
    Item& operator=(const Item&) = delete;

    ~Item() {
        g_cancellable_cancel(cancel_);
        g_object_unref(cancel_);
        g_bus_unwatch_name(watch_);
        Withdraw();
    }

    // A watcher without a host shows nothing, and a watcher that refuses the item does not show it.
    [[nodiscard]] bool IsShown() const { return hasHost_ && isRegistered_; }

    void MenuChanged() const {
        const std::vector<TrayMenuItem> items = events_.menu();
        for (std::size_t i = 0; i < entries_.size() && i < items.size(); ++i) {
            if (items[i].command) {
                dbusmenu_menuitem_property_set(entries_[i], DBUSMENU_MENUITEM_PROP_LABEL,
                                               MenuLabel(items[i].caption).c_str());
            }
            dbusmenu_menuitem_property_set_bool(entries_[i], DBUSMENU_MENUITEM_PROP_VISIBLE,
                                                items[i].enabled ? TRUE : FALSE);
        }
    }

  private:
    static void OnWatcherAppeared(GDBusConnection* connection, const char* /*name*/,
                                  const char* /*owner*/, void* data) {
        static_cast<Item*>(data)->Offer(connection);
    }

    static void OnWatcherVanished(GDBusConnection* /*connection*/, const char* /*name*/,
                                  void* data) {
        auto* const self = static_cast<Item*>(data);
        const bool wasShown = self->IsShown();
        self->Withdraw();
        self->hasHost_ = false;
        if (wasShown) {
            self->onHostChanged_();
        }
    }

    void Offer(GDBusConnection* connection) {
        Withdraw();
        connection_ = G_DBUS_CONNECTION(g_object_ref(connection));
        GDBusNodeInfo* const node = g_dbus_node_info_new_for_xml(kDescription, nullptr);
        static const GDBusInterfaceVTable kHandlers = {
            &Item::OnMethod, &Item::OnGetProperty, nullptr, {}};
        object_ = g_dbus_connection_register_object(connection_, kItemPath, node->interfaces[0],
                                                    &kHandlers, this, nullptr, nullptr);
        g_dbus_node_info_unref(node);
        MakeMenu();
        // The watcher identifies the item by our connection's own name.
        g_dbus_connection_call(
            connection_, kWatcher, kWatcherPath, kWatcher, "RegisterStatusNotifierItem",
            g_variant_new("(s)", g_dbus_connection_get_unique_name(connection_)), nullptr,
            G_DBUS_CALL_FLAGS_NONE, -1, cancel_, &Item::OnRegistered, this);
        changes_ = g_dbus_connection_signal_subscribe(
            connection_, kWatcher, kWatcher, nullptr, kWatcherPath, nullptr,
            G_DBUS_SIGNAL_FLAGS_NONE, &Item::OnWatcherSignal, this, nullptr);
        AskForHost();
    }

    void Withdraw() {
        if (connection_ == nullptr) {
            return;
        }
        g_dbus_connection_signal_unsubscribe(connection_, changes_);
        g_dbus_connection_unregister_object(connection_, object_);
        DropMenu();
        isRegistered_ = false;
        g_clear_object(&connection_);
    }

    static void OnRegistered(GObject* connection, GAsyncResult* result, void* data) {
        GError* error = nullptr;
        GVariant* const answer =
            g_dbus_connection_call_finish(G_DBUS_CONNECTION(connection), result, &error);
        const bool cancelled = g_error_matches(error, G_IO_ERROR, G_IO_ERROR_CANCELLED) != FALSE;
        g_clear_error(&error);
        if (!cancelled) {  // otherwise the item no longer exists
            static_cast<Item*>(data)->SetState(static_cast<Item*>(data)->hasHost_,
                                               answer != nullptr);
        }
        if (answer != nullptr) {
            g_variant_unref(answer);
        }
    }

    static void OnWatcherSignal(GDBusConnection* /*connection*/, const char* /*sender*/,
                                const char* /*path*/, const char* /*interface*/,
                                const char* /*signal*/, GVariant* /*parameters*/, void* data) {
        static_cast<Item*>(data)->AskForHost();
    }

    void AskForHost() {
        g_dbus_connection_call(
            connection_, kWatcher, kWatcherPath, "org.freedesktop.DBus.Properties", "Get",
            g_variant_new("(ss)", kWatcher, "IsStatusNotifierHostRegistered"),
            G_VARIANT_TYPE("(v)"), G_DBUS_CALL_FLAGS_NONE, -1, cancel_, &Item::OnHostAnswer, this);
    }

    static void OnHostAnswer(GObject* connection, GAsyncResult* result, void* data) {
        GError* error = nullptr;
        GVariant* const answer =
            g_dbus_connection_call_finish(G_DBUS_CONNECTION(connection), result, &error);
        const bool cancelled = g_error_matches(error, G_IO_ERROR, G_IO_ERROR_CANCELLED) != FALSE;
        g_clear_error(&error);
        if (cancelled) {
            return;  // the item no longer exists
        }
        bool has = false;
        if (answer != nullptr) {
            GVariant* value = nullptr;
            g_variant_get(answer, "(v)", &value);
            has = g_variant_is_of_type(value, G_VARIANT_TYPE_BOOLEAN) != FALSE &&
                  g_variant_get_boolean(value) != FALSE;
            g_variant_unref(value);
            g_variant_unref(answer);
        }
        static_cast<Item*>(data)->SetState(has, static_cast<Item*>(data)->isRegistered_);
    }

    void SetState(bool hasHost, bool isRegistered) {
        const bool wasShown = IsShown();
        hasHost_ = hasHost;
        isRegistered_ = isRegistered;
        if (IsShown() != wasShown) {
            onHostChanged_();
        }
    }

    static void OnMethod(GDBusConnection* /*connection*/, const char* /*sender*/,
                         const char* /*path*/, const char* /*interface*/, const char* method,
                         GVariant* arguments, GDBusMethodInvocation* call, void* data) {
        const auto* const self = static_cast<const Item*>(data);
        if (g_strcmp0(method, "ProvideXdgActivationToken") == 0) {
            const char* token = nullptr;
            g_variant_get(arguments, "(&s)", &token);
            self->events_.onToken(token);
        }
        // Answer first, because the rest may wait for the user.
        g_dbus_method_invocation_return_value(call, nullptr);
        if (g_strcmp0(method, "Activate") == 0) {
            self->events_.onLeftRelease();
        }
    }

    static GVariant* OnGetProperty(GDBusConnection* /*connection*/, const char* /*sender*/,
                                   const char* /*path*/, const char* /*interface*/,
                                   const char* property, GError** /*error*/, void* data) {
        return static_cast<const Item*>(data)->Property(property);
    }

    [[nodiscard]] GVariant* Property(const std::string& name) const {
        if (name == "IconPixmap") {
            return Pixmaps();
        }
        if (name == "ToolTip") {
            return g_variant_new("(s@a(iiay)ss)", "", Pixmaps(), tip_.c_str(), "");
        }
        if (name == "ItemIsMenu") {
            return g_variant_new_boolean(FALSE);
        }
        if (name == "Menu") {
            return g_variant_new_object_path(kMenuPath);
        }
        if (name == "Category") {
            return g_variant_new_string("ApplicationStatus");
        }
        if (name == "Status") {
            return g_variant_new_string("Active");
        }
        if (name == "IconName") {
            return g_variant_new_string(SymbolicIcon().name.c_str());
        }
        if (name == "IconThemePath") {
            return g_variant_new_string(SymbolicIcon().folder.c_str());
        }
        return g_variant_new_string(name == "Id"      ? kApplicationId
                                    : name == "Title" ? tip_.c_str()
                                                      : "");
    }

    [[nodiscard]] GVariant* Pixmaps() const {
        GVariantBuilder list;
        g_variant_builder_init(&list, G_VARIANT_TYPE("a(iiay)"));
        for (std::size_t i = 0; i < pictures_.GetIconCount(); ++i) {
            g_variant_builder_add_value(&list, PixmapOf(pictures_.GetIconByIndex(i).GetPixbuf()));
        }
        return g_variant_builder_end(&list);
    }

    // The desktop draws the menu. The items stay the same, because desktops remember them.
    // Disabled items are not shown at all.
    void MakeMenu() {
        menuServer_ = dbusmenu_server_new(kMenuPath);
        root_ = dbusmenu_menuitem_new();
        for (const TrayMenuItem& item : events_.menu()) {
            DbusmenuMenuitem* const entry = dbusmenu_menuitem_new();
            if (item.command) {
                TieToCommand(entry, *item.command);
                g_signal_connect(entry, DBUSMENU_MENUITEM_SIGNAL_ITEM_ACTIVATED,
                                 G_CALLBACK(&Item::OnMenuItem), this);
            } else {
                dbusmenu_menuitem_property_set(entry, DBUSMENU_MENUITEM_PROP_TYPE, "separator");
            }
            dbusmenu_menuitem_child_append(root_, entry);
            entries_.push_back(entry);
        }
        MenuChanged();
        g_signal_connect(root_, DBUSMENU_MENUITEM_SIGNAL_ABOUT_TO_SHOW,
                         G_CALLBACK(&Item::OnAboutToShow), this);
        dbusmenu_server_set_root(menuServer_, root_);
    }

    // A request from the desktop may still be on its way to an item. Disconnecting keeps it away.
    void DropMenu() {
        for (DbusmenuMenuitem* entry : entries_) {
            g_signal_handlers_disconnect_by_data(entry, this);
            g_object_unref(entry);
        }
        entries_.clear();
        if (root_ != nullptr) {
            g_signal_handlers_disconnect_by_data(root_, this);
        }
        g_clear_object(&root_);
        g_clear_object(&menuServer_);
    }

    static gboolean OnAboutToShow(DbusmenuMenuitem* /*root*/, Item* self) {
        self->MenuChanged();
        return FALSE;  // the desktop hears of changes by itself
    }

    static void OnMenuItem(DbusmenuMenuitem* entry, guint /*time*/, Item* self) {
        self->events_.onMenuItem(TiedCommand(entry));
    }

    const wxIconBundle pictures_;
    const std::string tip_;
    const TrayEvents& events_;
    std::function<void()> onHostChanged_;
    bool hasHost_ = false;
    bool isRegistered_ = false;
    DbusmenuMenuitem* root_ = nullptr;
    std::vector<DbusmenuMenuitem*> entries_;
    GCancellable* cancel_ = g_cancellable_new();
    GDBusConnection* connection_ = nullptr;
    DbusmenuServer* menuServer_ = nullptr;
    guint object_ = 0;
    guint changes_ = 0;
    guint watch_;  // the last member, because the bus may answer as soon as it is set
};

StatusNotifier::StatusNotifier(const wxIconBundle& pictures, const std::string& tip,
                               const TrayEvents& events, std::function<void()> onHostChanged)
    : item_(std::make_unique<Item>(pictures, tip, events, std::move(onHostChanged))) {}

StatusNotifier::~StatusNotifier() = default;

void StatusNotifier::MenuChanged() {
    item_->MenuChanged();
}

bool StatusNotifier::IsShown() const {
    return item_->IsShown();
}

}  // namespace brelex
