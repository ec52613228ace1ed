// SPDX-License-Identifier: MIT
#include "platform/desktop/modSysTray.h"

#include <utility>

#include <wx/icon.h>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include "platform/desktop/status_notifier.h"

// GtkStatusIcon is deprecated in favor of each desktop's own means. Where a desktop offers none, it
// is still the way into the notification area of an X11 panel.
G_GNUC_BEGIN_IGNORE_DEPRECATIONS

namespace brelex {

namespace {

// One icon, shown by whatever the desktop has: a host of StatusNotifierItems or a panel's tray.
class TrayIconGtk final : public TrayIcon {
  public:
    TrayIconGtk(const wxIconBundle& pictures, const std::string& tip, TrayEvents events)
        : events_(std::move(events)),
          icon_(GDK_IS_X11_DISPLAY(gdk_display_get_default())
                    ? gtk_status_icon_new_from_pixbuf(
                          pictures.GetIcon(wxSize(kPanelIcon, kPanelIcon)).GetPixbuf())
                    : nullptr),
          notifier_(pictures, tip, events_, [this] { OnHostChanged(); }) {
        if (icon_ == nullptr) {
            return;
        }
        gtk_status_icon_set_title(icon_, tip.c_str());
        gtk_status_icon_set_tooltip_text(icon_, tip.c_str());
        g_signal_connect(icon_, "activate", G_CALLBACK(&TrayIconGtk::OnActivate), this);
        g_signal_connect(icon_, "popup-menu", G_CALLBACK(&TrayIconGtk::OnPopupMenu), this);
        g_signal_connect(icon_, "notify::embedded", G_CALLBACK(&TrayIconGtk::OnEmbedded), this);
    }

    TrayIconGtk(const TrayIconGtk&) = delete;
    TrayIconGtk& operator=(const TrayIconGtk&) = delete;

    ~TrayIconGtk() override {
        CloseMenu();
        if (icon_ == nullptr) {
            return;
        }
        g_signal_handlers_disconnect_by_data(icon_, this);
        gtk_status_icon_set_visible(icon_, FALSE);
        g_object_unref(icon_);
    }

    [[nodiscard]] bool IsShown() const override {
        return notifier_.IsShown() ||
               (icon_ != nullptr && gtk_status_icon_is_embedded(icon_) != FALSE);
    }

    void PopUpMenu() override {
        CloseMenu();
        menu_ = gtk_menu_new();
        g_object_ref_sink(menu_);
        for (const TrayMenuItem& item : events_.menu()) {
            GtkWidget* const entry =
                item.command ? gtk_menu_item_new_with_mnemonic(MenuLabel(item.caption).c_str())
                             : gtk_separator_menu_item_new();
            gtk_widget_set_sensitive(entry, item.enabled ? TRUE : FALSE);
            if (item.command) {
                TieToCommand(entry, *item.command);
                g_signal_connect(entry, "activate", G_CALLBACK(&TrayIconGtk::OnItem), this);
            }
            gtk_menu_shell_append(GTK_MENU_SHELL(menu_), entry);
        }
        gtk_widget_show_all(menu_);
        gtk_menu_popup(GTK_MENU(menu_), nullptr, nullptr, gtk_status_icon_position_menu, icon_,
                       pressedButton_, pressTime_);
    }

    void MenuChanged() override { notifier_.MenuChanged(); }

  private:
    static constexpr int kPanelIcon = 24;

    static void OnActivate(GtkStatusIcon* /*icon*/, TrayIconGtk* self) {
        self->events_.onLeftRelease();
    }

    static void OnPopupMenu(GtkStatusIcon* /*icon*/, guint button, guint time, TrayIconGtk* self) {
        self->pressedButton_ = button;
        self->pressTime_ = time;
        self->events_.onRightRelease();
    }

    static void OnEmbedded(GtkStatusIcon* /*icon*/, GParamSpec* /*property*/, TrayIconGtk* self) {
        self->Tell();
    }

    static void OnItem(GtkMenuItem* entry, TrayIconGtk* self) {
        self->events_.onMenuItem(TiedCommand(entry));
    }

    void OnHostChanged() {
        if (icon_ != nullptr) {
            gtk_status_icon_set_visible(icon_, notifier_.IsShown() ? FALSE : TRUE);
        }
        Tell();
    }

    void Tell() const { IsShown() ? events_.onShown() : events_.onGone(); }

    void CloseMenu() {
        if (menu_ != nullptr) {
            gtk_widget_destroy(menu_);
            g_object_unref(std::exchange(menu_, nullptr));
        }
    }

    TrayEvents events_;
    GtkStatusIcon* icon_;  // null on Wayland, which has no place for it
    GtkWidget* menu_ = nullptr;
    guint pressedButton_ = 0;
    guint pressTime_ = 0;
    StatusNotifier notifier_;
};

}  // namespace

std::unique_ptr<TrayIcon> AddTrayIcon(const wxIconBundle& pictures, const std::string& tip,
                                      TrayEvents events) {
    return std::make_unique<TrayIconGtk>(pictures, tip, std::move(events));
}

}  // namespace brelex

G_GNUC_END_IGNORE_DEPRECATIONS
